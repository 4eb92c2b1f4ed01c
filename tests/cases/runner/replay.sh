# The common part of ../check and ../record, which source it at the repository's root.
# shellcheck shell=bash

# run_cases MODE [-p PROGRAM] [CASE...]: hands the cases to the test program. Without -p the program is that of
# the preset dev, which is brought up to date first; what the build says is shown only where it fails.
run_cases() {
    local mode=$1 program=build/dev/bin/wxbrg output
    shift
    if [ "${1-}" = -p ]; then
        program=$(cd "$OLDPWD" && realpath "${2:?-p needs the program to run}")
        shift 2
    elif ! output=$({ cmake --preset dev && cmake --build --preset dev --target wxbrg_test_cases; } 2>&1); then
        printf '%s\n' "$output" >&2
        return 2
    fi
    local tests
    tests=$(dirname "$program")/wxbrg_test_cases
    [ -x "$tests" ] || tests=build/dev/bin/wxbrg_test_cases
    "$tests" --gtest_brief=1 --program "$program" "$mode" "$@"
}
