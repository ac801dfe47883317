#!/bin/bash
# The generated man page and completions: they name every command and option that the program's own
# help names, and the shells (those that are there) accept them.
set -u
docs=$1
tintra=$2
failures=0
fail() {
    echo "FAILED: $*"
    failures=$((failures + 1))
}

for command in show name code contrast harmony read convert extract library formats profiles; do
    options=$("$tintra" "$command" --help | grep -oE '^ +(-[a-z], ?)?--[a-z-]+' | grep -oE -- '--[a-z-]+')
    [ -n "$options" ] || fail "no options in the help of $command"
    for option in $options; do
        [ "$option" = --help ] && continue
        for page in tintra.bash _tintra tintra.fish; do
            grep -q -- "${option#--}" "$docs/$page" || fail "$page lacks $option of $command"
        done
        grep -q -- "${option//-/\\\\-}" "$docs/tintra.1" || fail "the man page lacks $option"
    done
done

bash -n "$docs/tintra.bash" || fail "bash refuses its completion"
offered=$(bash -c '
    _init_completion() { cur=${COMP_WORDS[COMP_CWORD]} prev=${COMP_WORDS[COMP_CWORD-1]}
                         words=("${COMP_WORDS[@]}") cword=$COMP_CWORD; }
    source "$1"
    COMP_WORDS=(tintra convert a.ase --to "") COMP_CWORD=4
    _tintra
    echo "${COMPREPLY[*]}"' bash "$docs/tintra.bash")
[ "$offered" = "json xml html markdown svg css scss sass less ase clr gpl png" ] ||
    fail "bash offers “$offered” for convert --to"
if command -v zsh >/dev/null; then zsh -n "$docs/_tintra" || fail "zsh refuses its completion"; fi
if command -v fish >/dev/null; then fish -n "$docs/tintra.fish" || fail "fish refuses its completion"; fi
if command -v man >/dev/null; then
    warnings=$(LC_ALL=C.UTF-8 MANWIDTH=80 man --warnings -l "$docs/tintra.1" 2>&1 >/dev/null)
    [ -z "$warnings" ] || fail "man: $warnings"
fi
[ "$failures" -eq 0 ]
