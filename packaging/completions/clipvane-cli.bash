# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

# Completes clipvane-cli's commands, options and the values that can be listed; names of files are
# the shell's own.
_clipvane_cli() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    local every='--help --quiet --version' reading='--fps --from' command=${COMP_WORDS[1]} words=
    local rates='23.976 24 25 29.97 30 47.952 48 50 59.94 60'

    case $command in
        list) words="$reading --to --format --output --force" ;;
        convert) words="$reading --to --output --directory --force" ;;
        check) words="$reading --format --strict" ;;
        diff) words="$reading --to --by --track --format --verbose --strict --output --force" ;;
        stamp) words="$reading --output --directory --in-place --force --restamp" ;;
    esac
    case $previous in
        --fps | --to) words=$rates every= ;;
        --from)
            words='edl xml jsonl' every=
            [ "$command" = stamp ] && words=edl
            ;;
        -f | --format)
            words='table csv tsv jsonl' every=
            [ "$command" = check ] && words='text jsonl'
            [ "$command" = diff ] && words='table csv jsonl edl'
            ;;
        --by) words='reel name reel+name' every= ;;
        *)
            if [ "$COMP_CWORD" -eq 1 ]; then
                words='list convert check stamp diff'
            elif [[ $current != -* ]]; then
                words= every=
            fi
            ;;
    esac
    COMPREPLY=()
    mapfile -t COMPREPLY < <(compgen -W "$words $every" -- "$current")
}
complete -o bashdefault -o default -F _clipvane_cli clipvane-cli
