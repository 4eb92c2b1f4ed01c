# The common part of run.sh, test.sh and .ci/run, which source it at the repository's root.
# shellcheck shell=bash disable=SC2034

build_packages=(g++ cmake ninja-build python3 libexpat1-dev libcli11-dev libncurses-dev qt6-base-dev
    qt6-translations-l10n)
test_packages=(libgtest-dev libgmock-dev desktop-file-utils tmux xvfb xdotool)
check_packages=(clang-format clang-tidy shellcheck libbenchmark-dev unicode-data)

# say TEXT...: a heading on standard output.
say() { printf '\n== %s\n' "$*"; }

# missing_packages PACKAGE...: prints those that are not installed, one a line.
missing_packages() {
    local package states
    for package in "$@"; do
        # One line for each architecture that the package is known for.
        states=$(dpkg-query --show --showformat='${db:Status-Status}\n' "$package" 2>/dev/null || true)
        [[ $'\n'$states$'\n' == *$'\ninstalled\n'* ]] || printf '%s\n' "$package"
    done
}

# as_root COMMAND...: runs it as it is for root, else through sudo. Fails where there is no sudo.
as_root() {
    if [ "$(id --user)" -eq 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        printf 'Not root, and sudo is not installed. Run as root: %s\n' "$*" >&2
        return 1
    fi
}

# install_packages PACKAGE...: installs what is missing, and does nothing where nothing is.
install_packages() {
    if ! command -v dpkg-query >/dev/null; then
        say "No dpkg here. The build needs what Debian calls: $*"
        return 0
    fi
    local missing
    mapfile -t missing < <(missing_packages "$@")
    if [ "${#missing[@]}" -eq 0 ]; then
        say "Packages: all $# are installed"
        return 0
    fi
    say "Packages: installing ${missing[*]}"
    as_root apt-get --quiet update
    as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get --quiet --yes --no-install-recommends install "${missing[@]}"
}

# build PRESET [TARGET...]: configures and builds build/PRESET; builds all without a target.
build() {
    local preset=$1
    shift
    say "Building the preset $preset in build/$preset"
    cmake --preset "$preset" --log-level=WARNING
    cmake --build --preset "$preset" ${1:+--target "$@"}
}

# run_tests PRESET: runs every test of build/PRESET, side by side on all cores. The last line says how many passed,
# failed and were skipped, the lines above it why.
run_tests() {
    say "Testing the preset $1"
    local results=$PWD/build/$1/tests.xml status=0
    ctest --preset "$1" --parallel "$(nproc)" --output-junit "$results" || status=$?
    python3 tools/summary.py "$results" || status=1
    return "$status"
}
