# Completes kestrel-icon in fish. The program's own help tells what there is: it is made of the
# tables that it reads its arguments by.

# Lines of the help that fit an expression, as "word<TAB>description".
function __kestrel_icon_help
    kestrel-icon $argv[2..] --help 2>/dev/null | string replace -fr $argv[1] '$1\t$2'
end

# What the word under the cursor may become; fails where that is a file.
function __kestrel_icon_words
    set -l words (commandline -opc)
    set -l current (commandline -ct)
    if test (count $words) -lt 2
        __kestrel_icon_help '^  ([a-z]+)  +(.*)' | string match -v '*:*'
        return
    end
    set -l subcommand $words[2]
    set -l options (kestrel-icon $subcommand --help 2>/dev/null | string replace -fr '^  (?:-\w,)?(--[a-z-]+) TEXT.*' '$1') -j
    # The option whose value is being typed, and how many names stand before.
    set -l option ''
    set -l names 0
    for word in $words[3..]
        if test -n "$option"
            set option ''
        else if contains -- $word $options
            set option $word
        else if not string match -q -- '-*' $word
            set names (math $names + 1)
        end
    end
    switch "$option"
        case --format
            printf '%s\n' ico cur png
        case --into
            __fish_complete_directories $current ''
        case --files-from
            return 1
        case '-*'
        case '*'
            if string match -q -- '-?*' $current
                __kestrel_icon_help '^  (?:-\w,)?(--[a-z-]+)(?: TEXT)?(?: REQUIRED| \.\.\.)* +(.*)' $subcommand
            else if test $subcommand = apply -a $names -eq 0
                # Commands stand behind each other, with commas between.
                set -l before (string replace -r '[^,]*$' '' -- $current)
                printf "$before%s\n" (__kestrel_icon_help '^  ([a-z-]+) +mnu\w+ +(.*)' apply)
            else
                return 1
            end
    end
end

complete -c kestrel-icon -f -n '__kestrel_icon_words >/dev/null' -a '(__kestrel_icon_words)'
