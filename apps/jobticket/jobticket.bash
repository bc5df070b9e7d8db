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
    show) echo --help --raw --json ;;
    set) echo --help --output ;;
    unset) echo --help --output --all ;;
    features | models) echo --help --table ;;
    capabilities) echo --help --table --json --model --pdl --form ;;
    check) echo --help --json --dialog --fix --output --model --pdl --form ;;
    retarget) echo --help --json --output --from --from-pdl --to --to-pdl ;;
    instructions) echo --help --output --document --model --pdl --form --set --generic ;;
    notes) echo --help --output --model --pdl --set --generic ;;
    stock) echo --help list add remove ;;
    "stock list") echo --help --json --folder --model --pdl ;;
    "stock add") echo --help --favorite --folder ;;
    "stock remove") echo --help --folder ;;
    diff | "state show") echo --help ;;
    state) echo --help pack unpack show renew ;;
    "state unpack") echo --help --output ;;
    state\ *) echo --help --output --model --pdl --set --generic ;;
    preferences) echo --help list get set ;;
    "preferences list") echo --help --model --pdl --set --generic ;;
    preferences\ *) echo --help --type --model --pdl --set --generic ;;
    *) echo --help --version new show set unset diff check retarget instructions notes state \
        features models capabilities stock preferences ;;
    esac
}

# Options that take a value, as a pattern.
_jobticket_taking='-o|--output|-m|--model|-p|--pdl|--form|--type|--set|--document|--folder'
_jobticket_taking+='|--from|--from-pdl|--to|--to-pdl'

# The values of an option; fails for one that has none of its own.
_jobticket_option_values() {
    case $2 in
    -m | --model | --from | --to) "$1" models --table | cut -f 1 ;;
    -p | --pdl | --from-pdl | --to-pdl) echo ps pcl color-pcl ;;
    --form) echo xml stream model ;;
    --type) echo bool number text data ;;
    --set | --document) ;;
    *) return 1 ;;
    esac
}

# The names of the user's stocks, which may hold blanks.
_jobticket_stocks() {
    local name
    while IFS= read -r name; do
        if [[ $name == "$2"* ]]; then
            COMPREPLY+=("$(printf %q "$name")")
        fi
    done < <("$1" stock list 2> /dev/null | sed -n 's/  .*//p')
}

_jobticket() {
    local program=$1 current=$2 previous=$3 command="" before="" word values
    local -i arguments=0
    COMPREPLY=()
    for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
        if [[ $word != -* && $before != @($_jobticket_taking) ]]; then
            case $command in
            "") command=$word ;;
            state | preferences | stock) command+=" $word" ;;
            *) arguments+=1 ;;
            esac
        fi
        before=$word
    done
    if values=$(_jobticket_option_values "$program" "$previous"); then
        mapfile -t COMPREPLY < <(compgen -W "$values" -- "$current")
    elif [[ $command == @(|state|preferences|stock) || $current == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$(_jobticket_options "$command")" -- "$current")
    elif [[ $command == @(features|capabilities) ]]; then
        _jobticket_assignments "$program"
        COMPREPLY=("${COMPREPLY[@]%%[=.[]*}")
    elif [[ $command == "preferences "@(get|set) && arguments -eq 0 ]]; then
        values=$("$program" preferences list | cut -d " " -f 1)
        mapfile -t COMPREPLY < <(compgen -W "$values" -- "$current")
    elif [[ $command == "stock remove" && $previous != --folder ]]; then
        _jobticket_stocks "$program" "$current"
    elif [[ $command == @(set|unset|"stock add") && $previous != @(-o|--output|--folder) &&
        arguments -gt 0 ]]; then
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
