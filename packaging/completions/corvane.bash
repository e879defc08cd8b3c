# Completion of corvane for bash.
_corvane()
{
    local word=${COMP_WORDS[COMP_CWORD]} IFS=$' \t\n'
    local before=" ${COMP_WORDS[*]:0:COMP_CWORD} "
    # Behind "--" a name may begin with a dash.
    if [[ $word == -* && $before != *' -- '* ]]; then
        mapfile -t COMPREPLY < <(compgen -W '--toggle --show-all --list --take --null -0 --preferences
            --quit --help -h --version -v' -- "$word")
    else
        compopt -o filenames 2>/dev/null
        # Line by line: as words of the shell names would be taken for patterns.
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
    fi
}
complete -F _corvane corvane
