# bash completion for wxbrg(1)

_wxbrg_words() {
    # What can follow, by the subcommand (and for "profile" and "options" its action) in $1.
    case $1 in
    '') echo 'export models profile options replay --help -h --version' ;;
    export)
        echo '--locale --types --output -o --log --no-clobber --model --all --profile --default-rules --user' \
            '--language --code-page --set --no-stored-options --strict --quiet --help -h'
        ;;
    models) echo '--locale --types --all --profile --default-rules --no-stored-options --help -h' ;;
    profile) echo 'print check diff --help -h' ;;
    'profile print') echo '--default --profile --no-stored-options --help -h' ;;
    'profile '*) echo '--no-stored-options --help -h' ;;
    options) echo 'list get set reset --help -h' ;;
    replay) echo '--out --help -h' ;;
    'options '*) echo '--help -h' ;;
    esac
}

_wxbrg_option_names() {
    echo 'ConvertNames RemoveLineBreaks FirstSuffixNumber UseDataConBendPoints UseCtrlConBendPoints' \
        'UseDescriptionAttr UseDocumentationAttr UseOtherSettings DynamicStaffAssignment FindDataFlowLoops' \
        'FindControlFlowLoops StartConditions ExitConditions TransitionConditions DataTypeFromAttribute'
}

_wxbrg_text_names() {
    echo 'Language RepositoryPath'
}

_wxbrg_files() {
    # Folders, and files whose names end in one of the remaining arguments; all files without any.
    local current=$1 ending
    shift
    compgen -d -- "$current"
    if (($# == 0)); then
        compgen -f -- "$current"
    else
        for ending in "$@"; do compgen -f -X "!*$ending" -- "$current"; done
    fi
}

_wxbrg() {
    local current=${COMP_WORDS[COMP_CWORD]} previous='' command=${COMP_WORDS[1]} words='' files=()
    ((COMP_CWORD > 0)) && previous=${COMP_WORDS[COMP_CWORD - 1]}
    ((COMP_CWORD == 1)) && command=''
    if [[ $command == options || $command == profile ]] && ((COMP_CWORD > 2)); then
        command="$command ${COMP_WORDS[2]}"
    fi

    case "$command:$previous" in
    export:--output | export:-o) files=(_wxbrg_files "$current" .wpx) ;;
    export:--log) files=(_wxbrg_files "$current" .log) ;;
    export:--types | models:--types) files=(_wxbrg_files "$current") ;;
    export:--profile | models:--profile | 'profile print:--profile') files=(_wxbrg_files "$current" .prf) ;;
    replay:--out) files=(compgen -d -- "$current") ;;
    export:--language) words='ENU DEU' ;;
    export:--set)
        words=$(compgen -S = -W "$(_wxbrg_option_names)")
        compopt -o nospace 2>/dev/null
        ;;
    export:--locale | export:--model | export:--user | export:--code-page | models:--locale) ;;
    *)
        case "$command:$current" in
        *:-*) words=$(_wxbrg_words "$command") ;;
        export:* | models:*) files=(_wxbrg_files "$current" .aml .xml) ;;
        'profile check:'* | 'profile diff:'*) files=(_wxbrg_files "$current" .prf) ;;
        replay:*) files=(compgen -d -- "$current") ;;
        'options get:'* | 'options set:'* | 'options reset:'*)
            ((COMP_CWORD == 3)) && words="$(_wxbrg_option_names) $(_wxbrg_text_names)"
            ;;
        *) words=$(_wxbrg_words "$command") ;;
        esac
        ;;
    esac

    COMPREPLY=()
    if ((${#files[@]} > 0)); then
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <("${files[@]}" | sort -u)
    elif [[ -n $words ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current" | sort -u)
    fi
}

complete -F _wxbrg wxbrg
