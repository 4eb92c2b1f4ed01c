#!/usr/bin/env bash
# Installs what is missing, builds the program and exports the example repository with it.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")"
. tools/setup.sh

program=build/release/bin/wxbrg
repository=examples/order-processing.aml
definition=build/example/order-processing.wpx
log=build/example/order-processing.log

# show FILE COUNT: the first lines of a file, indented.
show() {
    say "$1, its first $2 of $(wc --lines <"$1") lines"
    head --lines="$2" "$1" | tr --delete '\r' | sed 's/^/    /'
}

install_packages "${build_packages[@]}"
build release

say "Exporting the model \"Order processing\" of $repository"
mkdir --parents build/example
rm --force "$definition" "$log"
"$program" export "$repository" --model "Order processing" --output "$definition"

show "$definition" 36
show "$log" 12

say "To look further"
cat <<EOF
    less $definition
    less $log
    $program models $repository
    $program export YOUR-EXPORT.aml -o OUT.wpx
    $program --help
EOF
