#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
#
# programTest.sh <korvex> <example scene>
#
# Runs the program as a shell would, and compares exit code, standard output, standard error, and the files that it
# was to leave alone.

set -uo pipefail

program=$1
scene=$2
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
export XDG_CONFIG_HOME=$folder/settings
failures=0

fail() {
    echo "$*"
    failures=$((failures + 1))
}

korvex() { "$program" "$@"; }
korvexOnAFullDisk() { (ulimit -f 1 && "$program" "$@"); }
run=korvex # one of the two

# expect <exit code> <stdout> <stderr> <arguments...>; "*" in an expected text stands for anything.
expect() {
    local code=$1 output=$2 errors=$3 actualCode=0
    shift 3
    "$run" "$@" >"$folder/out" 2>"$folder/err" || actualCode=$?
    local actualOutput actualErrors
    actualOutput=$(cat "$folder/out")
    actualErrors=$(cat "$folder/err")
    # shellcheck disable=SC2053 # the right sides are patterns
    if [ "$actualCode" -ne "$code" ] || [[ $actualOutput != $output ]] || [[ $actualErrors != $errors ]]; then
        fail "$(printf 'korvex %s\n  exit code %s, wanted %s\n  out: %s\n  err: %s\n' \
            "$*" "$actualCode" "$code" "$actualOutput" "$actualErrors")"
    fi
}

batch() { expect "$1" "$2" "$3" --batch "${@:4}"; }

# refused <stderr> <arguments...>: nothing runs, and no file changes, appears or goes.
refused() {
    local before after
    before=$(find . -type f -exec md5sum {} + | sort)
    batch 1 "" "$@"
    after=$(find . -type f -exec md5sum {} + | sort)
    [ "$before" = "$after" ] || fail "korvex --batch ${*:2} left other files: $after"
}

mkdir -p "$folder/files/folder.ma"
cd "$folder/files" || exit 1
mkfifo pipe.ma
cp "$scene" old.ma
head -c 3000 "$scene" >bad.ma
printf 'print "from a script\\n";\nwarning "careful";' >script.mel
printf 'select nobody;' >bad.mel
ran='print "ran";'

# --- What runs, and what it says
batch 0 "armSkin" "" -file "$scene" -command 'print(`ls -type skinCluster`);'
batch 0 $'1 2\nfrom a script' "Warning: *careful" -command 'print "1 ";' -command 'print "2\n";' -script script.mel
batch 0 "ran" "Error: *No object matches name: nobody" -command 'select nobody;' -command "$ran"
batch 3 "" "" -command 'quit -exitCode 3;' -command "$ran"
batch 0 "" "" -file "$scene" -command 'skinPercent -tv elbow 0.25 armSkin "arm.vtx[0]";' -save "$folder/saved.ma"
batch 0 "0.25" "" -file "$folder/saved.ma" -command 'print(`skinPercent -t elbow -q armSkin "arm.vtx[0]"`);'
batch 0 "//Maya ASCII*" "ran" -command "$ran" -save - # a scene on standard output has it for itself
batch 0 "ran" "" -script - <<<"$ran"
batch 0 "armSkin" "" -file - -command 'print(`ls -type skinCluster`); print(`file -q -sn`);' <"$scene"
korvex --batch -file - -save - <"$scene" >"$folder/once.ma" &&
    korvex --batch -file - -save - <"$folder/once.ma" | cmp - "$folder/once.ma" || fail "a pipe changes the scene"

# --- What is refused, and harms nothing
for strict in "" --strict; do
    refused "Error: $PWD/nowhere.ma: File not found" $strict -file nowhere.ma -command "$ran" -save nowhere.ma
    refused "Error: $PWD/bad.ma line *" $strict -file bad.ma -command "$ran" -save bad.ma
    refused "Error: $PWD/bad.ma line *" $strict -file bad.ma -command "$ran" -save old.ma
    refused "Error: standard input line 1: *" $strict -file - -command "$ran" -save old.ma <script.mel
    refused "Error: Cannot read the script nowhere.mel: *" $strict -command "$ran" -script nowhere.mel -save old.ma
    refused "Error: Cannot read the script folder.ma: *" $strict -script folder.ma -save old.ma
done
refused "Error: *nobody" --strict -command 'select nobody;' -command "$ran" -save old.ma
refused "Error: *nobody" --strict -script bad.mel -save old.ma
refused "korvex: --save old.mb: scenes are saved as Maya ASCII*" -command "$ran" -save old.mb
refused "korvex: --save old.json: *" -command "$ran" -save old.json
refused "korvex: --save /dev/stdout: *" -command "$ran" -save /dev/stdout
refused "korvex: --save folder.ma: *" -command "$ran" -save folder.ma
refused "korvex: --save pipe.ma: *" -command "$ran" -save pipe.ma
refused "Error: $PWD/no/old.ma: The file could not be written: *" -file old.ma -save no/old.ma
refused "korvex: the name of the scene is empty" -file "" -command "$ran" -save old.ma
refused "korvex: one scene at a time*" -file a.ma b.ma
refused "korvex: --save is given more than once" -save old.ma -save new.ma
refused "korvex: standard input is either*" -file - -script -
refused "korvex: this argument is not UTF-8: *" -file $'\xff.ma' -save old.ma
refused "korvex: Unknown option 'fiel'.*" -fiel old.ma
run=korvexOnAFullDisk refused "Error: $PWD/old.ma: The file could not be written: *" -file old.ma -command 'file -modified 1' -save old.ma
korvex --batch -save - >/dev/full 2>/dev/null && fail "a full standard output goes unnoticed"
mkdir gone && cd gone && rmdir ../gone
batch 1 "" "Error: old.ma: The folder that the program was started in is gone*" -file old.ma
cd "$folder/files" || exit 1

# --- Without a display; Qt says what its drawing into nothing can't do
unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM
expect 0 "Usage: *--picture*" "" --help
expect 0 "Korvex *" "" --version
expect 1 "" "korvex: Unknown option 'fiel'.*" --fiel old.ma
expect 1 "" "korvex: --save goes with --batch" old.ma --save new.ma
QT_QPA_PLATFORM=xcb expect 1 "" "korvex: no display: use --batch or --picture" old.ma # Wayland finds one unasked
expect 0 "" "*" --edit old.ma --picture "$folder/old.png"
[ -s "$folder/old.png" ] || fail "no picture was drawn without a display"
expect 1 "" "*Error: $PWD/bad.ma line *" --edit bad.ma --picture "$folder/bad.png"
[ ! -e "$folder/bad.png" ] || fail "there is a picture of a scene that was not opened"

exit $((failures > 0))
