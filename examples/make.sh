#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
#
# examples/make.sh [--check] <korvex>
#
# Makes each scene of this folder from the script of the same name, with the program given
# (build/default/bin/korvex). With --check it only tells whether they are what the scripts make.

set -euo pipefail

examples=$(cd "$(dirname "$0")" && pwd)
output=$examples
if [ "${1:-}" = --check ]; then
    shift
    output=$(mktemp -d)
    trap 'rm -rf "$output"' EXIT
fi
[ $# -eq 1 ] || { echo "usage: examples/make.sh [--check] <korvex>" >&2; exit 2; }

for script in "$examples"/*.mel; do
    scene=$(basename "$script" .mel).ma
    "$1" --batch --strict --script "$script" --save "$output/$scene" > /dev/null
    sed -i '/^\trename -uid /d' "$output/$scene" # each run makes other ones
    cmp "$output/$scene" "$examples/$scene"
done
