#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
#
# killedSaveTest.sh <korvex> [example scene] [points along a side of the plane] [kills]
#
# Kills the program while it saves again and again, and looks whether the file is always one of those that it wrote,
# from the first line to the last. 1100 points make a file of some 100 MB.

set -uo pipefail

korvex=$1
side=${3:-80}
kills=${4:-6}
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
mkdir "$folder/scenes"
file=$folder/scenes/plane.ma

for ((round = 0; round < 200; ++round)); do
    echo "setAttr plane.tx 1; file -f -save; setAttr plane.tx 2; file -f -save;"
done >"$folder/save.mel"
"$korvex" --batch -command "polyPlane -ch 0 -sx $side -sy $side -n plane; file -rename \"$file\"; setAttr plane.tx 1; file -f -save;" || exit 1
cp "$file" "$folder/first.ma"
"$korvex" --batch --file "$file" -command "setAttr plane.tx 2" --save "$file" || exit 1
cp "$file" "$folder/second.ma"
cmp -s "$folder/first.ma" "$folder/second.ma" && exit 1

for ((kill = 0; kill < kills; ++kill)); do
    inode=$(stat -c %i "$file")
    "$korvex" --batch --file "$file" --script "$folder/save.mel" &
    program=$!
    while [ "$(stat -c %i "$file")" = "$inode" ]; do # until it has saved once
        kill -0 "$program" || exit 1
        sleep 0.01
    done
    sleep 0.$((RANDOM % 10))$((RANDOM % 10))
    kill -9 "$program"
    wait "$program" 2>/dev/null
    cmp -s "$file" "$folder/first.ma" || cmp "$file" "$folder/second.ma" || exit 1
done
"$korvex" --batch --file "$file" -command "" --save "$file" || exit 1
[ "$(ls -A "$folder/scenes")" = plane.ma ] || { ls -A "$folder/scenes"; exit 1; }
