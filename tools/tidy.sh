#!/usr/bin/env bash
# Holds the program's sources (or those given as arguments) against the checks of .clang-tidy, one process a
# core. Exits with 1 when there is a finding.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
. tools/setup.sh

install_packages "${build_packages[@]}" "${test_packages[@]}" clang-tidy
cmake --preset dev --log-level=WARNING -D CMAKE_EXPORT_COMPILE_COMMANDS=ON
build dev

say "Static analysis"
if [ $# -gt 0 ]; then
    printf '%s\0' "$@"
else
    git ls-files -z '*.cpp' ':!tests'
fi | xargs --null --no-run-if-empty --max-procs="$(nproc)" --max-args=1 \
    clang-tidy --quiet -p build/dev 2>&1 | sed '/ warnings\{0,1\} generated\.$/d'
