# Sourced by the other scripts: installs Debian packages that are missing, builds a preset, runs its
# tests.

top=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

build_packages=(g++ cmake ninja-build qt6-base-dev qt6-multimedia-dev libgl-dev)
tool_packages=(zlib1g-dev)
font_packages=(fonts-dejavu-core)
screen_packages=(xvfb xauth "${font_packages[@]}")
test_packages=("${tool_packages[@]}" "${font_packages[@]}" libgtest-dev libgmock-dev)
bench_packages=("${tool_packages[@]}" "${screen_packages[@]}" libglib2.0-dev pkg-config)
package_packages=(dpkg-dev file)
cross_packages=(g++-mingw-w64-x86-64-posix libz-mingw-w64-dev)
qt_source_packages=(qt6-base-dev-tools dpkg-dev xz-utils perl python3)
wine_packages=(wine wine64 "${screen_packages[@]}")
check_packages=(clang clang-format clang-tidy desktop-file-utils appstream)

# install PACKAGE...: installs those that are missing, as root or through sudo. Says what that costs,
# and what to do where it is not allowed.
install() {
    local missing as_root=() apt
    missing=$(printf '%s\n' "$@" | sort -u | while read -r package; do
        [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] ||
            printf ' %s' "$package"
    done)
    [ -n "$missing" ] || return 0
    apt="apt-get install -y --no-install-recommends$missing"
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null && as_root=(sudo) || as_root=(false)
    fi

    echo "Missing packages:$missing"
    "${as_root[@]}" apt-get update -qq &&
        { LC_ALL=C $apt --print-uris 2>/dev/null | grep -E '^(Need to get|After this)' || true; } &&
        "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive $apt -qq >/dev/null || {
        cat >&2 <<TEXT

They could not be installed. Have root do it, then start this again:

    apt-get update && $apt

TEXT
        exit 1
    }
}

# build PRESET [-DNAME=VALUE...] [TARGET...]: configures and builds below build/PRESET.
build() {
    local preset=$1 options=()
    shift
    while [[ ${1:-} == -* ]]; do
        options+=("$1")
        shift
    done
    (cd "$top" && cmake --preset "$preset" "${options[@]}" >/dev/null &&
        cmake --build --preset "$preset" ${1:+--target "$@"})
}

# run_tests FOLDER [PREFIX...]: the test programs in FOLDER, each started by PREFIX, a share of its
# tests on each core.
run_tests() {
    local folder=$1 cores tests
    cores=$(nproc)
    shift
    for tests in "$folder"/*_tests; do
        seq 0 $((cores - 1)) | GTEST_TOTAL_SHARDS=$cores xargs -P "$cores" -I{} \
            env GTEST_SHARD_INDEX={} timeout 600 "$@" "$tests" --gtest_brief=1
    done
}
