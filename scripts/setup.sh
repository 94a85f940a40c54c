# Sourced by the other scripts: installs Debian packages that are missing, builds a preset, runs its
# tests.

top=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

build_packages=(g++ cmake ninja-build qt6-base-dev qt6-multimedia-dev libgl-dev
                zlib1g-dev)
test_packages=(libgtest-dev libgmock-dev fonts-dejavu-core)
screen_packages=(xvfb xauth fonts-dejavu-core)
bench_packages=(libglib2.0-dev pkg-config xvfb xauth)
check_packages=(clang libclang-rt-dev clang-format clang-tidy)

# install PACKAGE...: installs those that are missing, as root or through sudo.
install() {
    local missing=() as_root=()
    for package in "$@"; do
        [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] ||
            missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || {
            echo "Missing: ${missing[*]}. Install them as root, then start this again." >&2
            exit 1
        }
        as_root=(sudo)
    fi
    echo "Installing: ${missing[*]}"
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# build PRESET [TARGET...]: configures and builds below build/PRESET.
build() {
    local preset=$1
    shift
    (cd "$top" && cmake --preset "$preset" >/dev/null &&
        cmake --build --preset "$preset" ${1:+--target "$@"})
}

# run_tests FOLDER [PREFIX...]: the test programs in FOLDER, each started by PREFIX.
run_tests() {
    local folder=$1 tests
    shift
    for tests in "$folder"/*_tests; do
        timeout 600 "$@" "$tests" --gtest_brief=1
    done
}
