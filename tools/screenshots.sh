#!/usr/bin/env bash
# Makes the pictures of docs/screenshots anew: every page of the options form, the file dialog, a message box and
# the help, in both languages. Needs Qt 6 and Xvfb; nothing is shown on the screen.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
. tools/setup.sh

# start_display: starts an X server of its own for this script and sets DISPLAY.
start_display() {
    local number
    exec {numbers}< <(exec Xvfb -displayfd 1 -screen 0 1600x1200x24 -nolisten tcp 2>/dev/null)
    server=$!
    trap 'kill "$server"' EXIT
    read -r number <&"$numbers" || { echo "Xvfb does not start." >&2; return 1; }
    export DISPLAY=:$number QT_QPA_PLATFORM=xcb
}

install_packages "${build_packages[@]}" "${test_packages[@]}"
build dev wxbrg_screenshots
start_display
mkdir -p docs/screenshots
for language in ENU DEU; do
    say "Pictures of the dialogs in $language"
    build/dev/bin/wxbrg_screenshots "$language" docs/screenshots
done
