#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
#
# memoryTest.sh <korvex>
#
# Opens the weight editor on a large table with less and less memory: the program says so and lives.

set -uo pipefail

program=$(realpath "$1")
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
export XDG_CONFIG_HOME=$folder/settings QT_QPA_PLATFORM=offscreen
cd "$folder" || exit 1

# limited <megabytes> <arguments...>
limited() { (ulimit -v $(($1 * 1024)) && timeout 60 "$program" "${@:2}"); }

if ! limited 4000 --version >out 2>&1; then
    echo "this build needs more address space than there is (a sanitizer's)"
    exit 77
fi

joints=200
script="polyPlane -sx 200 -sy 200 -n body; select -cl;"
for ((i = 0; i < joints; i++)); do
    script+="joint -p 0 0 0.0$i;"
    names+=" joint$((i + 1))"
done
"$program" --batch --strict -command "$script skinCluster -tsb -mi 2$names body" -save big.ma || exit 1

# What the window alone takes, to 16 MB.
least=200
until limited "$least" --picture small.png >out 2>&1; do
    least=$((least + 16))
    [ "$least" -lt 4000 ] || exit 1
done

shortages=0
for ((extra = 32; extra < 400; extra += 40)); do
    limited $((least + extra)) --edit big.ma --picture big.png >out 2>err
    code=$?
    if [ "$code" -gt 1 ]; then
        echo "with $((least + extra)) MB (the window takes $least): exit code $code"
        cat err
        exit 1
    fi
    grep -q "Out of memory" err || break
    shortages=$((shortages + 1))
done
echo "$shortages limits too small for the table, above the window's $least MB"
[ "$shortages" -gt 0 ]
