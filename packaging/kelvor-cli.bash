# Completion of kelvor-cli for bash.                                                           -*- shell-script -*-

_kelvor_cli() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    COMPREPLY=()
    case $previous in
        --home | --work)
            compopt -o filenames
            mapfile -t COMPREPLY < <(compgen -d -- "$current")
            return
            ;;
        --script)
            compopt -o filenames
            mapfile -t COMPREPLY < <(compgen -f -X '!*.kvs' -- "$current"; compgen -d -- "$current")
            return
            ;;
    esac
    if [[ $current == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W '--home --work --script --language --json --help --version' -- "$current")
        return
    fi
    compopt -o filenames
    mapfile -t COMPREPLY < <(
        compgen -f -X '!*.[kK][vV][rR]' -- "$current"
        compgen -d -- "$current"
    )
}

complete -F _kelvor_cli kelvor-cli
