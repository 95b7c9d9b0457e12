# Shared by the scripts at the root of the repository, which source it there.

export CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime

say() { printf '%s\n' "$*" >&2; }
die() { say "$*"; exit 1; }

# packages_of SECTION...: the lines that packaging/packages.txt has under these headings, a package or "a|b" on each.
packages_of() {
    awk -v wanted=" $* " '
        match($0, /^# \[[a-z]+\]/) { taken = index(wanted, " " substr($0, 4, RLENGTH - 4) " "); next }
        /^#/ || NF == 0 { next }
        taken { gsub(/ /, ""); print }' packaging/packages.txt
}

as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        die "I need to be root, or sudo, for: $*"
    fi
}

# any_installed PACKAGE...
any_installed() {
    local package
    for package in "$@"; do
        [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null || true)" != installed ] || return 0
    done
    return 1
}

# need SECTION...: installs what is missing. A stamp in build/ saves the look at the next run.
need() {
    local stamp missing=() line
    stamp="build/.packages-$(printf '%s-' "$@")$(cksum < packaging/packages.txt | cut -d' ' -f1)"
    [ -e "$stamp" ] && return
    command -v dpkg-query >/dev/null || die "This is no Debian system. Please install by hand: $(packages_of "$@" | xargs)"
    for line in $(packages_of "$@"); do
        any_installed ${line//|/ } || missing+=("${line%%|*}")
    done
    if [ ${#missing[@]} -gt 0 ]; then
        say "Installing ${missing[*]}"
        as_root apt-get -q -o DPkg::Lock::Timeout=300 update >&2
        as_root env DEBIAN_FRONTEND=noninteractive \
            apt-get -q -y -o DPkg::Lock::Timeout=300 install --no-install-recommends "${missing[@]}" >&2
    fi
    mkdir -p build
    touch "$stamp"
}

# build PRESET [TARGET...]: configures once, then builds the targets, or everything.
build() {
    local preset=$1
    shift
    [ -e "build/$preset/build.ninja" ] || cmake --preset "$preset" >&2
    if [ $# -gt 0 ]; then
        cmake --build --preset "$preset" --target "$@" >&2
    else
        cmake --build --preset "$preset" >&2
    fi
}
