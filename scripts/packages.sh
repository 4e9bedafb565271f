#!/usr/bin/env bash
# packages.sh PURPOSE...: installs what is missing of the distribution's packages for the purposes named below.
# When nothing is missing it asks only dpkg's database and says nothing. A name with | lists alternatives, the first
# that the distribution has is taken.
set -euo pipefail

packages_of() {
    case $1 in
    build) # compiler, build tools, libraries, and what the built program needs at run time
        echo g++ cmake ninja-build pkg-config ca-certificates git
        echo qt6-base-dev 'qt6-svg-dev|libqt6svg6-dev' libxcb1-dev libglib2.0-dev libfontconfig-dev libpng-dev zlib1g-dev
        echo libavformat-dev libavcodec-dev libavutil-dev libswresample-dev libpulse-dev
        echo qt6-wayland qt6-qpa-plugins 'libqt6svg6|libqt6svg6t64'
        echo fonts-dejavu-core fonts-noto-color-emoji tzdata
        ;;
    desktop) # a private desktop: display, bus, window manager, a light bar, the hands and eyes of the tests
        echo python3 python3-gi dbus-daemon at-spi2-core libglib2.0-bin
        echo xvfb xauth x11-utils x11-xserver-utils xdotool xclip imagemagick openbox trayer
        echo xfce4-panel xfconf xfwm4 dunst faketime util-linux procps adwaita-icon-theme
        ;;
    test) # what ./check asks for beyond that
        echo libgtest-dev libgmock-dev libbenchmark-dev clang-format-14 clang-tidy-14
        echo clang-14 libclang-rt-14-dev gcovr
        echo desktop-file-utils appstream libxml2-utils man-db groff-base mandoc shellcheck
        echo pulseaudio pulseaudio-utils sox ffmpeg strace binutils
        echo fonts-lohit-deva # Hindi, the widest of the dates that the panel is fitted for
        ;;
    package) # a Debian package and its critic
        echo dpkg-dev binutils xz-utils gzip lintian
        ;;
    bars) # the bars that are quick to install
        echo tint2 i3-wm mate-panel lxqt-panel polybar
        ;;
    all-bars) # whole desktops
        echo mate-indicator-applet ayatana-indicator-application
        echo plasma-desktop plasma-workspace kwin-x11 kded5
        echo gnome-shell gnome-shell-extension-appindicator xwayland
        echo sway waybar grim
        ;;
    *) echo "packages.sh: no such purpose: $1" >&2 && return 2 ;;
    esac
}

names=()
for purpose in "$@"; do
    list=$(packages_of "$purpose")
    # shellcheck disable=SC2206  # the list is words
    names+=($list)
done

if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
    [ -z "${TAMBRELLE_PACKAGES_PRESENT:-}" ] || exit 0
    echo "This is not a Debian-like system. Please install what these packages hold, by the names used here:" >&2
    printf '  %s\n' "${names[@]}" >&2
    echo "then start again with TAMBRELLE_PACKAGES_PRESENT=1 in the environment." >&2
    exit 1
fi

# shellcheck disable=SC2086,SC2048  # alternatives become names of their own
set -- ${names[*]//|/ }
installed=" $(dpkg-query -W -f='${db:Status-Status}:${Package} ' "$@" 2>/dev/null || true)"
missing=()
for name in "${names[@]}"; do
    found=
    for alternative in ${name//|/ }; do
        case $installed in *" installed:$alternative "*) found=1 ;; esac
    done
    [ -n "$found" ] || missing+=("$name")
done
[ ${#missing[@]} -gt 0 ] || exit 0

as_root=()
if [ "$(id -u)" != 0 ]; then
    if ! command -v sudo >/dev/null; then
        echo "These packages are missing, and neither root's rights nor sudo are at hand to install them:" >&2
        printf '  %s\n' "${missing[@]}" >&2
        exit 1
    fi
    as_root=(sudo)
fi
echo "Installing ${#missing[@]} missing packages: ${missing[*]}"

apt() {
    # env: sudo drops the environment, and debconf must not ask anything.
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive APT_LISTCHANGES_FRONTEND=none \
        apt-get -qq -o DPkg::Lock::Timeout=600 -o Dpkg::Use-Pty=0 -o Acquire::Retries=3 "$@" </dev/null
}
log=$(mktemp)
trap 'rm -f "$log"' EXIT
if ! apt update >"$log" 2>&1; then
    # An unreachable third-party source must not stop us; a package that cannot be had will, below.
    sed 's/^/  /' "$log" >&2
fi

chosen=() unknown=()
for name in "${missing[@]}"; do
    pick=
    for alternative in ${name//|/ }; do
        if apt-cache show --no-all-versions "$alternative" >/dev/null 2>&1; then
            pick=$alternative
            break
        fi
    done
    if [ -n "$pick" ]; then chosen+=("$pick"); else unknown+=("$name"); fi
done
if [ ${#unknown[@]} -gt 0 ]; then
    echo "This distribution has no package of these names; Debian 12 has:" >&2
    printf '  %s\n' "${unknown[@]}" >&2
    exit 1
fi
if ! apt install -y --no-install-recommends "${chosen[@]}" >"$log" 2>&1; then
    tail -n 40 "$log" >&2
    echo "The installation of packages failed." >&2
    exit 1
fi
