# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash
# What ./run, ./test and bench/run share. Source it from the root of the tree.

# fail SENTENCE [LOG]: says what failed and what to do, in one line, and stops. Where nobody can open the log later, as
# on a machine that only tests, its end is shown before.
fail() {
    [ -z "${CI:-}" ] || [ -z "${2:-}" ] || tail -n 40 "$2" >&2
    printf '%s: %s\n' "${0##*/}" "$1" >&2
    exit 1
}

# install_packages PURPOSE...: installs the packages of tools/packages.txt that are listed for these purposes and missing.
install_packages() {
    local purposes="$*" purpose package missing=()
    while read -r purpose package; do
        case " $purposes " in
        *" $purpose "*) dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q ' installed$' || missing+=("$package") ;;
        esac
    done < <(grep -v '^#' tools/packages.txt)
    [ ${#missing[@]} -gt 0 ] || return 0

    command -v apt-get >/dev/null || fail "these packages are missing, and there is no apt-get to install them: ${missing[*]}"
    local root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || fail "as root, run: apt-get install ${missing[*]}"
        root=(sudo)
    fi
    printf 'Installing what Tessaly needs to %s: %s\n' "${purposes// / and }" "${missing[*]}" >&2
    mkdir -p build
    { "${root[@]}" apt-get update -q && "${root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -q --no-install-recommends "${missing[@]}"; } >build/packages.log 2>&1 ||
        fail "installing packages failed; build/packages.log says why (is there a network?)" build/packages.log
}

# build_preset PRESET: configures where needed and builds; silent when there is nothing to do.
build_preset() {
    local preset=$1 log="build/$1.log"
    mkdir -p build
    if [ ! -f "build/$preset/build.ninja" ]; then
        printf 'Building Tessaly in build/%s; the first time takes some minutes.\n' "$preset" >&2
        cmake --preset "$preset" >"$log" 2>&1 || fail "configuring failed; $log says why" "$log"
    fi
    cmake --build "build/$preset" >"$log" 2>&1 || fail "building failed; $log says why" "$log"
}
