# Completion of jobticket for bash: commands, options, files, features and values.

# Candidates for FEATURE=VALUE. Bash splits words at "=", so what has been typed is taken from the
# line, and of each candidate only what lies behind "=" is given back.
_jobticket_assignments() {
    local program=$1 typed=${COMP_LINE:0:COMP_POINT} candidate
    typed=${typed##*[[:space:]]}
    typed=${typed#[\'\"]}
    while IFS= read -r candidate; do
        if [[ $typed == *=* ]]; then
            candidate=${candidate#*=}
        fi
        COMPREPLY+=("$candidate")
    done < <("$program" features --complete "$typed" 2> /dev/null)
    compopt -o nospace 2> /dev/null # more may follow behind "=", "." and ","
}

_jobticket_options() {
    case $1 in
    new) echo --help --output --model --pdl --form ;;
    show) echo --help --raw ;;
    set) echo --help --output ;;
    unset) echo --help --output --all ;;
    features | models) echo --help --table ;;
    capabilities) echo --help --table --model --pdl --form ;;
    diff | "state show") echo --help ;;
    state) echo --help pack unpack show renew ;;
    "state unpack") echo --help --output ;;
    state\ *) echo --help --output --model --pdl --set --generic ;;
    preferences) echo --help list get set ;;
    "preferences list") echo --help --model --pdl --set --generic ;;
    preferences\ *) echo --help --type --model --pdl --set --generic ;;
    *) echo --help --version new show set unset diff state features models capabilities preferences ;;
    esac
}

# The values of an option; fails for one that has none of its own.
_jobticket_option_values() {
    case $2 in
    -m | --model) "$1" models --table | cut -f 1 ;;
    -p | --pdl) echo ps pcl color-pcl ;;
    --form) echo xml stream model ;;
    --type) echo bool number text data ;;
    --set) ;;
    *) return 1 ;;
    esac
}

_jobticket() {
    local program=$1 current=$2 previous=$3 command="" before="" word values
    local -i arguments=0
    COMPREPLY=()
    for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
        if [[ $word != -* && $before != @(-o|--output|-m|--model|-p|--pdl|--form|--type|--set) ]]; then
            case $command in
            "") command=$word ;;
            state | preferences) command+=" $word" ;;
            *) arguments+=1 ;;
            esac
        fi
        before=$word
    done
    if values=$(_jobticket_option_values "$program" "$previous"); then
        mapfile -t COMPREPLY < <(compgen -W "$values" -- "$current")
    elif [[ $command == @(|state|preferences) || $current == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$(_jobticket_options "$command")" -- "$current")
    elif [[ $command == @(features|capabilities) ]]; then
        _jobticket_assignments "$program"
        COMPREPLY=("${COMPREPLY[@]%%[=.[]*}")
    elif [[ $command == "preferences "@(get|set) && arguments -eq 0 ]]; then
        values=$("$program" preferences list | cut -d " " -f 1)
        mapfile -t COMPREPLY < <(compgen -W "$values" -- "$current")
    elif [[ $command == @(set|unset) && $previous != @(-o|--output) && arguments -gt 0 ]]; then
        _jobticket_assignments "$program"
        if [[ $command == unset ]]; then
            COMPREPLY=("${COMPREPLY[@]%=}")
        fi
    else
        compopt -o filenames 2> /dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "$current")
    fi
}

complete -F _jobticket jobticket
