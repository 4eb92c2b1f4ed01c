#!/usr/bin/env bash
# Installs what is missing, builds the tests and runs all of them.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")"
. tools/setup.sh

install_packages "${build_packages[@]}" "${test_packages[@]}"
build dev
run_tests dev
