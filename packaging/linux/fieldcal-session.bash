# Completion for fieldcal-session in bash. Verbs, options and the values of options come from the program's own help.

_fieldcal_session() {
    local word=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} program=${COMP_WORDS[0]}
    local help candidates="" candidate
    COMPREPLY=()
    if [ "$COMP_CWORD" = 1 ]; then
        candidates="$("$program" --help 2>/dev/null | sed -n '/^Verbs:/,/^$/s/^  \([a-z][a-z-]*\) .*/\1/p') --help --version"
    else
        help=$("$program" "${COMP_WORDS[1]}" --help 2>/dev/null)
        # Options whose values are words name them, as in "--camera third|platform"; others take numbers or files.
        if [[ $previous =~ ^--[a-z-]+$ ]]; then
            candidates=$(sed -n "s/^  $previous \([a-z]\+\(|[a-z]\+\)\+\)\( .*\)\?$/\1/p" <<<"$help")
        fi
        if [ -z "$candidates" ] && [[ $word == -* ]]; then
            candidates=$(sed -n 's/^  \(-h,\)\?\(--[a-z-]*\).*/\2/p' <<<"$help")
        fi
    fi
    for candidate in ${candidates//|/ }; do
        [[ $candidate == "$word"* ]] && COMPREPLY+=("$candidate")
    done
}
complete -o default -F _fieldcal_session fieldcal-session
