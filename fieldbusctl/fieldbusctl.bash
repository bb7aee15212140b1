# shellcheck shell=bash
# Completion of fieldbusctl for bash. Commands and options are asked of the program, so that they are its own.

_fieldbusctl() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} words=
    case $previous in
    --mode) words='free fixed' ;;
    --fail-on) words='information warning error' ;;
    *)
        if ((COMP_CWORD == 1)); then
            words=$("${COMP_WORDS[0]}" --help 2>/dev/null | sed -n '/^Subcommands:/,/^$/s/^  \([a-z]*\) .*/\1/p')
        elif [[ $current == -* ]]; then
            words=$("${COMP_WORDS[0]}" "${COMP_WORDS[1]}" --help 2>/dev/null | grep -o -- '--[a-z][a-z-]*' | sort -u)
        fi
        ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
}

# What is no word of the program is a file or a folder.
complete -o default -F _fieldbusctl fieldbusctl
