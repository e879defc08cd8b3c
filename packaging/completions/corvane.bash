# Completion of corvane for bash.
_corvane()
{
    local word=${COMP_WORDS[COMP_CWORD]}
    COMPREPLY=()
    if [[ $word == -* ]]; then
        COMPREPLY=($(compgen -W '--toggle --show-all --list --take --null -0 --preferences --quit
            --help -h --version -v' -- "$word"))
    else
        compopt -o filenames 2>/dev/null
        local IFS=$'\n'
        COMPREPLY=($(compgen -f -- "$word"))
    fi
}
complete -F _corvane corvane
