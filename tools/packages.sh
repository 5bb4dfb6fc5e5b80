# Finds and installs the Debian packages that building, running and testing need. To be sourced by a POSIX shell.

# What the build needs, and the fonts that the windows and the manual use.
BUILD_PACKAGES="g++ cmake ninja-build qt6-base-dev qt6-base-dev-tools libgtest-dev fonts-dejavu-core fonts-liberation2"
# A virtual screen, a window manager for it, and real key and mouse events.
SCREEN_PACKAGES="xvfb xauth openbox xdotool"
# What checks the sources: formatting, clang-tidy, and the script that runs it.
CHECK_PACKAGES="clang-format-14 clang-tidy-14 python3"
# The compiler of the fuzzers.
FUZZ_PACKAGES="clang-14"
# What finds the libraries that a .deb depends on; it takes "file" to tell the programs among the files.
PACKAGE_PACKAGES="dpkg-dev file"
# The compiler for Windows; test library and packer of the Windows programs; what runs them here (the 64-bit loader is
# enough).
CROSS_PACKAGES="g++-mingw-w64-x86-64-posix"
WINDOWS_PACKAGES="$CROSS_PACKAGES googletest zip"
WINE_PACKAGES="wine wine64 fonts-wine"

# Prints those of the named packages that are not installed.
missing_packages() {
    for package; do
        status=$(dpkg-query --show --showformat='${db:Status-Status}' "$package" 2>/dev/null) || status=none
        [ "$status" = installed ] || printf '%s ' "$package"
    done
}

# Installs those of the named packages that are not installed; ends the script with a message when that cannot be done.
need_packages() {
    if ! command -v dpkg-query >/dev/null; then
        echo "This system does not use Debian packages; going on with what is installed. Needed: $*" >&2
        return 0
    fi
    missing=$(missing_packages "$@")
    [ -n "$missing" ] || return 0
    as_root=
    if [ "$(id -u)" != 0 ]; then
        if ! command -v sudo >/dev/null; then
            echo "These packages are missing: $missing" >&2
            echo "Installing them takes root, and there is no sudo here. As root, run: apt-get install $missing" >&2
            exit 1
        fi
        as_root="sudo"
    fi
    echo "Installing: $missing"
    # The names are words of a list, to be split.
    # shellcheck disable=SC2086
    if ! { $as_root env DEBIAN_FRONTEND=noninteractive apt-get update --quiet=2 &&
        $as_root env DEBIAN_FRONTEND=noninteractive apt-get install --yes --quiet=2 --no-install-recommends $missing \
            >/dev/null; }; then
        echo "The packages could not be installed; apt-get says why above." >&2
        exit 1
    fi
}
