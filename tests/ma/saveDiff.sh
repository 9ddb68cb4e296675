#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
#
# tests/ma/saveDiff.sh PROGRAM [FOLDER]
#
# How many lines of each scene in FOLDER (or $KORVEX_SCENES) change when PROGRAM opens it and saves it in place:
# unchanged, and with a weight of one vertex of each skin cluster set. Prints a table for host/README.md, without the
# date of the header. Fails when a save without a change changes anything, or one vertex more than its own lines and
# three others.

set -uo pipefail
export QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen}

program=$1
folder=${2:-${KORVEX_SCENES:-}}
[ -n "$folder" ] || { echo "KORVEX_SCENES is not set" >&2; exit 77; }
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
status=0

fail() { echo "$*" >&2; status=1; }

run() { "$program" --batch --strict --file "$scratch/scene.ma" "$@" 2>"$scratch/messages"; }

# The lines of the saved file that the old one has not, those of the header's date left out.
changedLines() { diff "$1" "$scratch/scene.ma" | grep -v '^[<>] //Last modified' | grep '^[<>]'; }

# The more of lines taken out and lines put in.
countLines() {
    awk '/^</ { out++ } /^>/ { in_++ } END { print (out > in_ ? out : in_) + 0 }'
}

# One weight of vertex 1 takes half of what the others have.
editOf() {
    local skin=$1 shape joint
    shape=$(run --command "print(\`skinCluster -q -g $skin\`)" | tail -n 1)
    joint=$(run --command "print(\`skinCluster -q -inf $skin\`)" | tail -n 1)
    [ -n "$shape" ] && [ -n "$joint" ] && echo "skinPercent -tv \"$joint\" 0.4375 $skin \"$shape.vtx[1]\""
}

echo "| scene | statements | unchanged | one vertex |"
echo "|---|---|---|---|"
for scene in "$folder"/*.ma; do
    name=$(basename "$scene" .ma)
    cp "$scene" "$scratch/scene.ma" && chmod u+w "$scratch/scene.ma"
    run --command 'file -modified 1' --save "$scratch/scene.ma" >/dev/null || fail "$name: $(cat "$scratch/messages")"
    unchanged=$(changedLines "$scene" | countLines)
    [ "$unchanged" = 0 ] || fail "$name: a save without a change changes $unchanged lines"

    most=-
    for skin in $(sed -nE 's/^createNode skinCluster -n(ame)? "([^"]*)".*/\2/p' "$scene"); do
        cp "$scene" "$scratch/scene.ma"
        edit=$(editOf "$skin")
        [ -n "$edit" ] || continue
        run --command "$edit" --save "$scratch/scene.ma" >/dev/null || fail "$name $edit: $(cat "$scratch/messages")"
        changedLines "$scene" >"$scratch/lines"
        lines=$(countLines <"$scratch/lines")
        # A vertex has a line or two of its own, or in scenes up to 2017 a line for each weight.
        own=$(grep -E '^[<>][[:space:]]+(setAttr.*\.(wl|weightList)\[1\]|[0-9]+ [0-9])' "$scratch/lines" | countLines)
        [ "$lines" -gt 0 ] || fail "$name: $edit changes nothing"
        [ "$lines" -le $((own + 3)) ] || fail "$name: $edit changes $lines lines"
        [ "$most" != - ] && [ "$most" -ge "$lines" ] || most=$lines
    done
    echo "| $name | $(grep -c ';' "$scene") | $unchanged | $most |"
done
exit $status
