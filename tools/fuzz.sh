#!/usr/bin/env bash
# fuzz.sh SECONDS [TARGET...]: runs the fuzz targets of tests/fuzz, or those named, for so many seconds each, from
# their kept inputs. What they find new stays in build/fuzz/corpus for the next time. Exits with failure where an
# input breaks one; it lies in build/fuzz then.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
. tools/setup.sh

# fuzz TARGET SECONDS: runs one target. The kept inputs go through it whole; what is made of them stays short
# enough for many a second.
fuzz() {
    local target=build/fuzz/bin/wxbrg_fuzz_$1 found=build/fuzz/corpus/$1 kept=tests/fuzz/corpus/$1
    mkdir -p "$found"
    say "Fuzzing the target $1 for $2 seconds"
    "$target" -artifact_prefix="build/fuzz/$1-" "$kept"/*
    "$target" -max_total_time="$2" -max_len=2048 -timeout=20 -print_final_stats=1 -verbosity=0 \
        -dict="tests/fuzz/$1.dict" -artifact_prefix="build/fuzz/$1-" "$found" "$kept"
}

seconds=${1:?'usage: tools/fuzz.sh SECONDS [TARGET...]'}
shift
if [ $# -eq 0 ]; then
    for corpus in tests/fuzz/corpus/*/; do set -- "$@" "$(basename "$corpus")"; done
fi

install_packages "${build_packages[@]}" clang libclang-rt-14-dev
build fuzz "${@/#/wxbrg_fuzz_}"
for target in "$@"; do fuzz "$target" "$seconds"; done
