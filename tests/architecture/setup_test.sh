#!/usr/bin/env bash
# Holds tools/setup.sh to what it promises: it installs what is missing and nothing else. The commands that
# would look at or change this machine are replaced by ones that play a machine of this test's choice.
#
# usage: setup_test.sh PATH-OF-setup.sh
set -euo pipefail

stage=$(mktemp --directory)
unset DEBIAN_FRONTEND
trap 'rm --recursive --force "$stage"' EXIT
mkdir "$stage/bin" "$stage/bin-without-sudo"

# command NAME BODY: a command of the played machine.
command_of_machine() { printf '#!/bin/bash\n%s\n' "$2" >"$stage/bin/$1" && chmod +x "$stage/bin/$1"; }
# shellcheck disable=SC2016
{
    command_of_machine dpkg-query 'package=${!#}
case " $INSTALLED " in *" $package "*) echo installed; exit ;; esac
case " $REMOVED " in *" $package "*) echo config-files; exit ;; esac
echo "no packages found matching $package" >&2
exit 1'
    command_of_machine apt-get 'echo "apt-get $* [${DEBIAN_FRONTEND:-}]" >>"$CALLS"'
    command_of_machine id 'echo "$USER_NUMBER"'
    command_of_machine sudo 'echo "sudo $1" >>"$CALLS"; exec "$@"'
}
cp "$stage/bin/dpkg-query" "$stage/bin/apt-get" "$stage/bin/id" "$stage/bin-without-sudo"
for tool in bash env cat; do
    path=$(command -v "$tool") && [ -x "$path" ] && ln -s "$path" "$stage/bin-without-sudo/$tool"
done

export CALLS=$stage/calls INSTALLED="" REMOVED="" USER_NUMBER=0
path_of_machine=$stage/bin:$PATH
setup=$1
failed=0

# install PACKAGE...: what install_packages prints; the commands it ran are in CALLS.
install() {
    : >"$CALLS"
    # shellcheck disable=SC2016
    PATH=$path_of_machine bash -c 'set -euo pipefail; . "$0"; install_packages "$@"' "$setup" "$@" 2>&1
}

# expect WHAT EXPECTED ACTUAL
expect() {
    if [ "$2" != "$3" ]; then
        printf 'FAILED: %s\n  expected: %s\n  actual:   %s\n' "$1" "$2" "$3"
        failed=1
    fi
}

update="apt-get --quiet update []"
install_of() { printf 'apt-get --quiet --yes --no-install-recommends install %s [noninteractive]' "$1"; }

INSTALLED="g++ cmake"
expect "says that all is there" $'\n== Packages: all 2 are installed' "$(install g++ cmake)"
expect "runs nothing when nothing is missing" "" "$(install g++ cmake >/dev/null; cat "$CALLS")"

INSTALLED="cmake"
expect "names what it installs" $'\n== Packages: installing g++ ninja-build' "$(install g++ cmake ninja-build)"
expect "installs only what is missing, after one update, without questions" \
    "$update"$'\n'"$(install_of 'g++ ninja-build')" "$(install g++ cmake ninja-build >/dev/null; cat "$CALLS")"

REMOVED="g++"
expect "counts a removed package whose configuration is left as missing" \
    "$update"$'\n'"$(install_of g++)" "$(install g++ cmake >/dev/null; cat "$CALLS")"

USER_NUMBER=1000
expect "goes through sudo when not root" \
    $'sudo apt-get\n'"$update"$'\nsudo env\n'"$(install_of g++)" "$(install g++ >/dev/null; cat "$CALLS")"

path_of_machine=$stage/bin-without-sudo
expect "tells what to run as root when there is no sudo" \
    "Not root, and sudo is not installed. Run as root: apt-get --quiet update" "$(install g++ | tail -n 1)"
expect "fails then" "failed" "$(install g++ >/dev/null || echo failed)"

rm "$stage/bin-without-sudo/dpkg-query"
expect "names the packages on a system without dpkg, and goes on" \
    $'\n== No dpkg here. The build needs what Debian calls: g++ cmake' "$(install g++ cmake)"

exit "$failed"
