#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
#
# docs/makePictures.sh
#
# Does the tasks of the user guide in the window, as the tests do, and writes its pictures anew.

set -euo pipefail

cd "$(dirname "$0")/.."
source cmake/setup.sh
installPackages "${buildPackages[@]}"
prepareTestEnvironment
cmake --preset default >/dev/null
cmake --build --preset default
export KORVEX_GUIDE_PICTURES=$PWD/docs/pictures
build/default/bin/guideTests
build/default/bin/korvex --edit examples/two_mesh_character.ma --picture docs/pictures/editor.png
