#!/usr/bin/env bash
# tidy.sh [--changed | FILE...]: holds the program's sources against the checks of .clang-tidy, one process a core:
# all of them, those that differ from the main branch, or those named. Exits with failure when there is a finding.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
. tools/setup.sh

# base_commit: where this branch left the main branch; the commit before this one on the main branch itself. Fails
# where neither is known.
base_commit() {
    local base
    base=$(git merge-base HEAD origin/main 2>/dev/null) || base=
    if [ -n "$base" ] && [ "$base" != "$(git rev-parse HEAD)" ]; then
        printf '%s\n' "$base"
    else
        git rev-parse --quiet --verify HEAD^
    fi
}

# sources [--changed | FILE...]: prints what is to be checked, each name ended by a null byte.
sources() {
    local base
    if [ $# -eq 0 ]; then
        git ls-files -z '*.cpp' ':!tests'
    elif [ "$1" != --changed ]; then
        printf '%s\0' "$@"
    elif base=$(base_commit); then
        git diff -z --name-only --diff-filter=d "$base" -- '*.cpp' ':!tests'
    else
        git ls-files -z '*.cpp' ':!tests'
    fi
}

install_packages "${build_packages[@]}" clang-tidy
cmake --preset tidy --log-level=WARNING

sources "$@" >build/tidy/sources
mapfile -d '' -t files <build/tidy/sources
say "Static analysis of ${#files[@]} sources"
xargs --null --no-run-if-empty --max-procs="$(nproc)" --max-args=1 \
    clang-tidy --quiet -p build/tidy <build/tidy/sources 2>&1 | sed '/ warnings\{0,1\} generated\.$/d'
