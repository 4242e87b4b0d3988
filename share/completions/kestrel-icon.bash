# shellcheck shell=bash
# Completes kestrel-icon in bash. The program's own help tells what there is: it is made of the
# tables that it reads its arguments by.

# Subcommands; options, "TEXT" behind those that take a value; commands of apply.
_kestrel_icon_subcommands() { "$1" --help 2>/dev/null | sed -nE '/^Subcommands:/,/^$/s/^  ([a-z]+) .*/\1/p'; }
_kestrel_icon_options() {
    "$@" --help 2>/dev/null | sed -nE 's/^  (-[A-Za-z0-9],)?(--[a-z-]+)( TEXT)?.*/\2\3/p'
}
_kestrel_icon_commands() { "$1" apply --help 2>/dev/null | sed -nE 's/^  ([a-z-]+) +mnu.*/\1/p'; }

_kestrel_icon() {
    local program=${COMP_WORDS[0]} token=${COMP_WORDS[COMP_CWORD]}
    # Words as the program sees them: readline takes "=" for one of its own.
    local words=() word glued='' i
    for ((i = 1; i <= COMP_CWORD; ++i)); do
        word=${COMP_WORDS[i]}
        if [[ -n $glued || $word == '=' ]]; then words[-1]+=$word; else words+=("$word"); fi
        if [[ $word == '=' ]]; then glued=1; else glued=''; fi
    done
    [[ $token != '=' ]] || token=''
    if [[ ${#words[@]} -lt 2 ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$(_kestrel_icon_subcommands "$program") --help --version" -- "$token")
        return
    fi

    local subcommand=${words[0]} current=${words[-1]} option='' options names=0
    options=$(_kestrel_icon_options "$program" "$subcommand")
    # The option whose value is being typed, and how many names stand before.
    for word in "${words[@]:1:${#words[@]}-2}"; do
        if [[ -n $option ]]; then
            option=
        elif [[ $word == -j ]] || grep -qx -- "$word TEXT" <<<"$options"; then
            option=$word
        elif [[ $word != -* ]]; then
            names=$((names + 1))
        fi
    done
    [[ $current != --*=* ]] || option=${current%%=*}

    case $option in
        --format) mapfile -t COMPREPLY < <(compgen -W 'ico cur png' -- "$token") ;;
        --into)
            compopt -o filenames
            mapfile -t COMPREPLY < <(compgen -d -- "$token")
            ;;
        --files-from) ;;
        -*) compopt +o default +o bashdefault ;;
        *)
            if [[ $current == -?* ]]; then
                mapfile -t COMPREPLY < <(compgen -W "${options// TEXT/}" -- "$token")
            elif [[ $subcommand == apply && $names -eq 0 ]]; then
                compopt -o nospace
                local last=${current##*,}
                mapfile -t COMPREPLY < <(compgen -P "${token%"$last"}" \
                    -W "$(_kestrel_icon_commands "$program")" -- "$last")
            fi
            ;;
    esac
}

complete -o bashdefault -o default -F _kestrel_icon kestrel-icon
