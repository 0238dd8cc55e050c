# Debian packages by what they are needed for, and how to install what is missing. Sourced by run, test,
# .ci/run and those of tools/ that need packages of their own; needs bash.

build_packages=(g++ cmake ninja-build qt6-base-dev qt6-svg-dev libqt6sql6-sqlite qt6-translations-l10n)
display_packages=(libqt6gui6 qt6-qpa-plugins fonts-dejavu-core)
tour_packages=(xvfb openbox xdotool x11-utils)
test_packages=(libgtest-dev libgmock-dev "${tour_packages[@]}" xauth sqlite3 binutils)
check_packages=(clang clang-format clang-tidy libclang-rt-14-dev git)
coverage_packages=(llvm)
package_packages=(desktop-file-utils appstream dpkg-dev)
bench_packages=(libbenchmark-dev libinih-dev libsimpleini-dev)

is_installed() {
    dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null | grep -qx installed
}

# Installs those of the named packages that are missing; says so first. Quick when there is nothing to do.
install_missing() {
    local missing=() package
    for package in "$@"; do
        is_installed "$package" || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    if ! command -v apt-get >/dev/null; then
        echo "Missing: ${missing[*]}. Please install them: this script knows Debian's apt-get alone." >&2
        return 1
    fi
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        as_root=(sudo)
        if ! command -v sudo >/dev/null; then
            echo "Missing: ${missing[*]}. Please install them as root: apt-get install ${missing[*]}" >&2
            return 1
        fi
    fi
    echo "Installing with ${as_root[*]:+${as_root[*]} }apt-get: ${missing[*]}"
    DEBIAN_FRONTEND=noninteractive "${as_root[@]}" apt-get update -qq || true
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}"
}
