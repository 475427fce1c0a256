# Completion of zpf for bash.

_zpf_values() {
    case $1 in
        -f | --format) echo "png bmp" ;;
        -s | --scale) echo "1 2 3 4 5 6 7 8" ;;
        -l | --layout) echo "big small" ;;
        --paper) echo "a4 letter" ;;
        *) return 1 ;;
    esac
}

_zpf_options() {
    case $1 in
        info) echo "--json --help" ;;
        check) echo "--json --quiet --help" ;;
        render) echo "--output --format --scale --frames --help" ;;
        report) echo "--output --help" ;;
        print) echo "--output --layout --pages --paper --help" ;;
    esac
}

_zpf() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} values option=
    COMPREPLY=()
    if [ "$COMP_CWORD" -eq 1 ]; then
        mapfile -t COMPREPLY < <(compgen -W "info check render report print help --help --version" -- "$word")
        return
    fi
    if [ "${COMP_WORDS[1]}" = help ]; then
        [ "$COMP_CWORD" -gt 2 ] || mapfile -t COMPREPLY < <(compgen -W "info check render report print" -- "$word")
        return
    fi
    # The shell takes "--scale=2" apart at its mark.
    if [ "$word" = = ]; then
        option=$before
        word=
    elif [ "$before" = = ]; then
        option=${COMP_WORDS[COMP_CWORD - 2]}
    else
        option=$before
    fi
    if values=$(_zpf_values "$option"); then
        mapfile -t COMPREPLY < <(compgen -W "$values" -- "$word")
        return
    fi
    case $option in
        -o | --output)
            compopt -o filenames
            mapfile -t COMPREPLY < <(compgen -f -- "$word")
            return ;;
        -n | --frames | -p | --pages) return ;;
    esac
    if [[ $word == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$(_zpf_options "${COMP_WORDS[1]}")" -- "$word")
        return
    fi
    compopt -o filenames
    mapfile -t COMPREPLY < <(compgen -d -- "$word"; compgen -f -X '!*.zpf' -- "$word")
}

complete -F _zpf zpf
