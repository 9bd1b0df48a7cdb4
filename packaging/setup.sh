# shellcheck shell=bash
# What ./run, ./test and .ci/run share: messages, packages, configuring, building.
# The caller sets `me`, the name in front of its messages, and is at the top of the repository.

closing="done" # the last line of a command that goes well, unless it says more

# Packages, by what they are for.
# shellcheck disable=SC2034 # each command uses some of these lists
{
    build_packages=(build-essential cmake ninja-build qt6-base-dev fonts-dejavu-core)
    pdf_packages=(poppler-utils) # the tests and the tour read printed pages back
    tour_packages=(xvfb openbox xdotool xclip x11-utils x11-xkb-utils x11-xserver-utils imagemagick at-spi2-core
        dbus-daemon python3-gi gir1.2-atspi-2.0 "${pdf_packages[@]}")
    style_packages=(adwaita-qt6 qt6-gtk-platformtheme kde-style-breeze) # of other desktops, for checks alone
    wayland_packages=(qt6-wayland)
    sway_packages=(sway wtype wl-clipboard grim jq "${wayland_packages[@]}") # a Wayland desktop, for checks alone
    deb_packages=(debhelper librsvg2-bin)
    check_packages=(clang clang-format-19 clang-tidy-19 shellcheck lintian desktop-file-utils appstream
        g++-mingw-w64-x86-64-posix debootstrap)
    # libFuzzer of the Clang that the release has, which only recommends it.
    fuzz_packages=(clang)
    case $(sed -n 's/^VERSION_ID="*\([0-9]*\).*/\1/p' /etc/os-release 2>/dev/null) in
        12) fuzz_packages+=(libclang-rt-14-dev) ;;
        *) fuzz_packages+=(libclang-rt-19-dev) ;;
    esac
}
brew_formulas=(cmake ninja qt poppler)

# What takes long to make and serves all clones is kept here.
cache_folder() { echo "${XDG_CACHE_HOME:-$HOME/.cache}/gradeloom-build"; }

say() { printf '%s: %s\n' "$me" "$*"; }

fail() {
    printf '%s: %s\n' "$me" "$*" >&2
    exit 1
}

# The last line of each command, whichever way it ends.
close_with() { # [STATUS]
    local status=${1:-$?}
    if ((status == 0)); then say "$closing"; else say "FAILED with status $status"; fi
}

on_mac() { [[ $(uname -s) == Darwin ]]; }

has_display() { on_mac || [[ -n ${DISPLAY:-}${WAYLAND_DISPLAY:-} ]]; }

installed() { [[ $(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null) == installed ]]; }

as_root() { if ((EUID == 0)); then "$@"; else sudo "$@"; fi; }

# Installs those of the named packages that are missing. Only apt-get runs with root's rights.
need_packages() {
    local package missing=()
    if ! command -v dpkg-query apt-get >/dev/null; then
        say "no apt here: taking these as installed: $*"
        return
    fi
    for package; do installed "$package" || missing+=("$package"); done
    if ((${#missing[@]} == 0)); then
        say "nothing to install of: $*"
        return
    fi
    if ((EUID != 0)); then
        command -v sudo >/dev/null ||
            fail "these packages are missing, and neither root's rights nor sudo are here to install them: ${missing[*]}"
    fi
    say "installing ${missing[*]}"
    apt_get() {
        as_root env DEBIAN_FRONTEND=noninteractive apt-get -qq -o DPkg::Lock::Timeout=300 \
            -o Acquire::Retries=3 -o Dpkg::Use-Pty=0 "$@" </dev/null
    }
    apt_get update
    apt_get install -y --no-install-recommends "${missing[@]}" >/dev/null
}

need_formulas() {
    local formula missing=()
    command -v brew >/dev/null || fail "Homebrew is needed to install ${brew_formulas[*]}"
    for formula in "${brew_formulas[@]}"; do
        brew list --versions "$formula" >/dev/null || missing+=("$formula")
    done
    ((${#missing[@]} == 0)) || brew install "${missing[@]}"
    CMAKE_PREFIX_PATH=$(brew --prefix qt)
    export CMAKE_PREFIX_PATH
}

# The named packages on Debian; all formulas on macOS.
set_up() {
    if on_mac; then need_formulas; else need_packages "$@"; fi
}

# build PRESET [TARGET...]: configures and builds one of the presets.
build() {
    local preset=$1 targets=()
    shift
    (($# == 0)) || targets=(--target "$@")
    say "building preset $preset${*:+: $*}"
    cmake --preset "$preset"
    cmake --build --preset "$preset" ${targets[@]+"${targets[@]}"}
}
