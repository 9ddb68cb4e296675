# SPDX-License-Identifier: Apache-2.0
#
# What run, test and .ci/run share, for bash: the Debian packages that building and testing need, and how a
# machine is made ready.

# qt6-base-dev and qtbase5-dev bring Qt's platform plug-ins xcb (a display) and offscreen (none) with them.
readonly buildPackages=(g++ cmake ninja-build qt6-base-dev tao-pegtl-dev libimath-dev libgtest-dev
    libgmock-dev libbenchmark-dev fonts-dejavu-core)
readonly qt5Packages=(qtbase5-dev)
readonly waylandPackages=(qt6-wayland)
readonly checkPackages=(clang-format git)

fail() {
    echo "$(basename "$0"): $*" >&2
    exit 1
}

# Installs the packages named that are not there yet. Asks for nothing, and starts nothing, when all are.
installPackages() {
    if ! command -v dpkg-query >/dev/null; then
        echo "Not a Debian system; going on as if these, or what they are called here, were installed: $*"
        return
    fi
    local package missing=()
    for package in "$@"; do
        dpkg-query -W -f '${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed ||
            missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return

    local asRoot=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || fail "please install: ${missing[*]} (needs root or sudo)"
        asRoot=(sudo)
    fi
    echo "Installing: ${missing[*]}"
    "${asRoot[@]}" apt-get update -qq
    "${asRoot[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# Tests and benchmarks run without a display unless QT_QPA_PLATFORM asks for one, and on real scenes if they lie
# beside the checkout.
prepareTestEnvironment() {
    export QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen}
    if [ -z "${KORVEX_SCENES:-}" ] && [ -d ../shared/scenes ]; then
        KORVEX_SCENES=$(cd ../shared/scenes && pwd)
        export KORVEX_SCENES
    fi
}
