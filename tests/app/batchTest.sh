#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
#
# batchTest.sh <korvex> <example scene>
#
# Runs the program in batch mode and compares exit code, standard output and standard error.

set -uo pipefail

korvex=$1
scene=$2
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
failures=0

# expect <exit code> <stdout> <stderr> <arguments...>; "*" in an expected text stands for anything.
expect() {
    local code=$1 output=$2 errors=$3 actualCode=0
    shift 3
    "$korvex" --batch "$@" >"$folder/out" 2>"$folder/err" || actualCode=$?
    local actualOutput actualErrors
    actualOutput=$(cat "$folder/out")
    actualErrors=$(cat "$folder/err")
    # shellcheck disable=SC2053 # the right sides are patterns
    if [ "$actualCode" -ne "$code" ] || [[ $actualOutput != $output ]] || [[ $actualErrors != $errors ]]; then
        printf 'korvex --batch %s\n  exit code %s, wanted %s\n  out: %s\n  err: %s\n' \
            "$*" "$actualCode" "$code" "$actualOutput" "$actualErrors"
        failures=$((failures + 1))
    fi
}

printf 'print "from a script\\n";\nwarning "careful";' >"$folder/script.mel"

expect 0 "armSkin" "" -file "$scene" -command 'print(`ls -type skinCluster`);'
expect 0 $'1 2\nfrom a script' "Warning: *careful" -command 'print "1 ";' -command 'print "2\n";' -script "$folder/script.mel"
expect 0 "" "Error: *No object matches name: nobody" -command 'select nobody;'
expect 1 "" "Error: *No object matches name: nobody" --strict -command 'select nobody;'
expect 3 "" "" -command 'quit -exitCode 3;' -command 'print "never reached";'
expect 1 "" "Error: *nowhere.ma: File not found" --strict -file "$folder/nowhere.ma"
expect 1 "" "Error: Cannot read the script *" --strict -script "$folder/nowhere.mel"
expect 1 "" "korvex: one scene at a time*" -file a.ma b.ma
expect 0 "" "" -file "$scene" -command 'skinPercent -tv elbow 0.25 armSkin "arm.vtx[0]";' -save "$folder/saved.ma"
expect 0 "0.25" "" -file "$folder/saved.ma" -command 'print(`skinPercent -t elbow -q armSkin "arm.vtx[0]"`);'

exit $((failures > 0))
