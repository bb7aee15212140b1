# shellcheck shell=bash
# Completion of fieldbus-pendant for bash. The options are asked of the program, so that they are its own.

_fieldbus_pendant() {
    local current=${COMP_WORDS[COMP_CWORD]} words=
    [[ $current != -* ]] || words=$("${COMP_WORDS[0]}" --help 2>/dev/null | grep -o -- '--[a-z][a-z-]*' | sort -u)
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
}

# What is no option is a file or a folder.
complete -o default -F _fieldbus_pendant fieldbus-pendant
