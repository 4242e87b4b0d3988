#!/usr/bin/env bash
# Words completed in the shells themselves, by the files that are installed for them.
# shellcheck source=tests/cli/cli.sh
source "$(dirname "$0")/cli.sh"
completions=$tests/../share/completions
PATH=$(dirname "$program"):$PATH
touch 'some icon.ico'
mkdir 'some folder'

# What is typed, and the last word that comes of it.
cat >typed <<'END'
kestrel-icon conv
kestrel-icon convert --siz
kestrel-icon convert --format p
kestrel-icon extract --into some
kestrel-icon apply grays
kestrel-icon apply --seed 7 gamma=200,rotate-l
kestrel-icon apply invert some\ i
END
cat >expected <<'END'
convert
--sizes
png
some folder
grayscale
gamma=200,rotate-left
some icon.ico
END

# Typed <shell>...: the last of the words that each line becomes; some take a folder's slash back.
Typed() { python3 "$tests/cli/complete.py" "$@" <typed | sed -E 's/\|$//; s/.*\|//; s,/$,,'; }

echo "PS1='> '; source '$completions/kestrel-icon.bash'" >rc
Typed bash --noprofile --rcfile rc -i | diff expected - || Fail 'bash'

echo "PS1='> '; unsetopt prompt_sp; fpath=('$completions' \$fpath); autoload -U compinit; compinit -u -D" >.zshrc
ZDOTDIR=$PWD Typed zsh -d -i | diff expected - || Fail 'zsh'

HOME=$PWD fish -c "source '$completions/kestrel-icon.fish'
    while read line; complete -C \$line; end" <typed |
    cut -f1 | sed 's,/$,,' | diff expected - || Fail 'fish'
