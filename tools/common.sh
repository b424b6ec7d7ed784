# Shared by the commands of this folder; read with `source`, not run.

# Goes to the top of the source tree, whatever the caller's folder.
cd "$(dirname "${BASH_SOURCE[0]}")/.."

say() { printf '== %s\n' "$*"; }
fail() { printf '%s: %s\n' "${0##*/}" "$*" >&2; exit 1; }

# The packages of the given sections of packages.txt.
packages() {
    local section
    for section in "$@"; do
        awk -v wanted="[$section]" '/^\[/ { on = ($0 == wanted) } on && /^[a-z0-9]/ { print $1 }' tools/packages.txt
    done
}

# need SECTION...: installs what is missing. Needs Debian and root only if something is.
need() {
    local package missing=()
    command -v dpkg-query >/dev/null || fail "this is not Debian: packages are installed with apt-get only"
    for package in $(packages "$@"); do
        [ "$(dpkg-query -W -f '${db:Status-Abbrev}' "$package" 2>/dev/null)" = "ii " ] || missing+=("$package")
    done
    if [ ${#missing[@]} -eq 0 ]; then
        say "packages: all installed"
        return
    fi
    grep -qs '^ID=debian$' /etc/os-release && [ -e /etc/debian_version ] ||
        fail "this is not Debian: install the equivalents of: ${missing[*]}"
    [ "$(id -u)" -eq 0 ] || fail "not root: run as root, or first: apt-get install ${missing[*]}"
    say "packages: installing ${missing[*]}"
    export DEBIAN_FRONTEND=noninteractive
    apt-get update -q || fail "apt-get update failed"
    apt-get install -q -y --no-install-recommends "${missing[@]}" || fail "apt-get install failed"
}

# build PRESET [TARGET...]: configures on first use, builds the targets (default: all).
build() {
    local preset=$1
    shift
    say "configuring $preset in build/$preset"
    cmake --preset "$preset" --log-level=WARNING >/dev/null || fail "configuring $preset failed"
    say "building $preset${*:+: $*}"
    cmake --build --preset "$preset" --parallel "$(nproc)" ${*:+--target "$@"} || fail "building $preset failed"
}
