# Completion of jobticket for bash. The program itself knows what may follow; files are left to bash.

_jobticket() {
    local kind="" candidate
    COMPREPLY=()
    while IFS= read -r candidate; do
        if [[ -z $kind ]]; then
            kind=$candidate
        else
            COMPREPLY+=("$candidate")
        fi
    done < <("$1" complete -- "${COMP_LINE:0:COMP_POINT}" 2> /dev/null)
    case $kind in
    files)
        compopt -o filenames 2> /dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "$2")
        ;;
    folders)
        compopt -o filenames 2> /dev/null
        mapfile -t COMPREPLY < <(compgen -d -- "$2")
        ;;
    begun) compopt -o nospace 2> /dev/null ;;
    esac
}

complete -F _jobticket jobticket
