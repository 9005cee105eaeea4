# Shared by ./run and ./test: says what is done and installs what a bare Debian 12 lacks for it.

build_packages=(g++ cmake mold ninja-build qt6-base-dev libsqlitecpp-dev
    libcsv-dev librsvg2-bin qt6-l10n-tools qt6-translations-l10n)
command -v npm >/dev/null || build_packages+=(npm)
# A private display, and the means to see and press what a program shows on it.
screen_packages=(xvfb openbox xdotool dbus at-spi2-core python3-gi gir1.2-atspi-2.0
    imagemagick x11-utils fonts-dejavu-core)
printing_packages=(cups-daemon cups-client poppler-utils)
checking_packages=(clang-format clang-tidy)

say() { printf '==> %s\n' "$*"; }

fail() {
    printf '%s\n' "$*" >&2
    exit 1
}

# Debian's package manager as root: directly, or through sudo.
apt() {
    local root=()
    ((EUID == 0)) || root=(sudo)
    "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -o Dpkg::Use-Pty=0 "$@"
}

# install_missing PACKAGE...: installs those that are not there; with none missing it touches nothing.
install_missing() {
    local package installed missing=()
    # All at once: to be asked for each would be felt at every start.
    installed=$(dpkg-query -W -f '${Package} ${db:Status-Status}\n' "$@" 2>/dev/null) || true
    for package in "$@"; do
        [[ $'\n'$installed$'\n' == *$'\n'"$package installed"$'\n'* ]] || missing+=("$package")
    done
    ((${#missing[@]})) || return 0
    if ! command -v apt-get >/dev/null || { ((EUID)) && ! command -v sudo >/dev/null; }; then
        fail "Please install these Debian 12 packages, which needs root or sudo: ${missing[*]}"
    fi
    say "Installing from the distribution: ${missing[*]}"
    local log
    log=$(mktemp)
    apt update >"$log" 2>&1 || say "The package lists can't be refreshed; trying with those at hand"
    apt install -y --no-install-recommends "${missing[@]}" >>"$log" 2>&1 ||
        fail "$(cat "$log")" $'\n'"These packages can't be installed: ${missing[*]}"
    rm "$log"
}

# configure PRESET: anew only where the presets have changed; the build looks after the rest.
configure() {
    [[ build/$1/build.ninja -nt CMakePresets.json ]] || cmake --preset "$1" >/dev/null
}

# build PRESET [TARGET]: configures and builds, everything or one target.
build() {
    say "Building ($1)"
    configure "$1"
    cmake --build --preset "$1" ${2:+--target "$2"}
}

# private_display SIZE: a display that nobody sees, for the commands that follow; end_display ends it.
private_display() {
    local number
    number=$(mktemp)
    Xvfb -displayfd 1 -screen 0 "$1" >"$number" 2>/dev/null &
    display=$!
    until [[ -s $number ]]; do sleep 0.1; done
    export DISPLAY=:$(<"$number")
    rm "$number"
}
end_display() { kill "$display"; }
