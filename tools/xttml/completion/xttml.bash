# shellcheck shell=bash
# Completion of xttml for bash. What there is to complete is read from the program's own help.

# Adds what a help tells to the caller's commands and options, and sets value to what the option `previous` takes.
_xttml_read_help() {
    local line section='' names
    while IFS= read -r line; do
        if [[ $line =~ ^[A-Za-z]+:$ ]]; then
            section=${line,,}
        elif [[ $section == subcommands: && $line =~ ^\ \ ([a-z]+)\  ]]; then
            commands+=" ${BASH_REMATCH[1]}"
        elif [[ $section == options: && $line =~ ^\ \ (-[^\ ]+)\ ?([^\ :]*)(\ |$) ]]; then
            names=${BASH_REMATCH[1]//,/ }
            options+=" $names"
            [[ " $names " != *" $previous "* ]] || value=${BASH_REMATCH[2]}
        fi
    done < <("$@" --help 2>/dev/null)
}

_xttml() {
    local tool=${1/#\~/$HOME} current=$2 previous=$3 commands='' options='' value='' command='' words='' word
    if [[ $previous == '=' ]]; then
        previous=${COMP_WORDS[COMP_CWORD - 2]}
    elif [[ ${COMP_WORDS[COMP_CWORD]} == '=' ]]; then
        current=
    fi
    _xttml_read_help "$tool"
    for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
        [[ $command || " $commands " != *" $word "* ]] || command=$word
    done
    [[ ! $command ]] || options=
    _xttml_read_help "$tool" "${command:-list}"
    case $value in
    '')
        if [[ $current == -* ]]; then
            words=$options
        elif ((COMP_CWORD == 1)); then
            words=$commands
        fi
        ;;
    *'|'*) words=${value//'|'/ } ;;
    DIR) compopt -o dirnames +o default ;;
    OUT | BLOCK | FRAME) ;;
    *) compopt +o default ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
}

# Where nothing is found the shell completes files.
complete -o default -F _xttml xttml
