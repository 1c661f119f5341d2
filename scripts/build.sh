# shellcheck shell=bash
# What demo and test share: installing what is missing, configuring and building. To be sourced.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

say() { printf 'xttml: %s\n' "$*" >&2; }

give_up() {
    say "$*"
    exit 1
}

# For a script that takes no arguments: takes_none "$@".
takes_none() {
    [[ $# -eq 0 ]] || {
        echo "usage: scripts/${0##*/}" >&2
        exit 2
    }
}

# present PACKAGE[=COMMAND]: whether the Debian package is installed, or its command comes from elsewhere.
present() {
    local package=${1%%=*} command=${1#*=}
    if [[ $1 == *=* ]] && command -v "$command" >/dev/null; then
        return 0
    fi
    [[ $(dpkg-query -W -f='${Status}' "$package" 2>/dev/null) == 'install ok installed' ]]
}

run_apt_get() {
    local prefix=() log
    if [[ $(id -u) -ne 0 ]]; then
        command -v sudo >/dev/null || give_up "installing needs root or sudo; missing: $missing"
        prefix=(sudo)
    fi
    log=$(mktemp)
    if ! "${prefix[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq -y "$@" >"$log" 2>&1 </dev/null; then
        cat "$log" >&2
        rm -f "$log"
        give_up "apt-get $* failed"
    fi
    rm -f "$log"
}

# install_packages PACKAGE[=COMMAND]...: installs those that are not there.
install_packages() {
    local package names=()
    for package in "$@"; do
        present "$package" || names+=("${package%%=*}")
    done
    [[ ${#names[@]} -gt 0 ]] || return 0
    missing="${names[*]}"
    command -v apt-get >/dev/null || give_up "this is no Debian system; please install what these packages hold: $missing"
    say "installing $missing"
    run_apt_get update
    run_apt_get install --no-install-recommends "${names[@]}"
}

install_build_packages() {
    install_packages g++=g++ cmake=cmake ninja-build=ninja libxerces-c-dev libcli11-dev nlohmann-json3-dev libfmt-dev \
        libpango1.0-dev pkg-config=pkg-config
}

install_test_packages() {
    install_packages libgtest-dev python3=python3 pkg-config=pkg-config groff-base=groff fonts-dejavu-core
}

# What the GStreamer element is built with.
install_gstreamer() {
    install_packages libgstreamer-plugins-base1.0-dev
}

# What reads our subtitles and was written by others.
install_player_packages() {
    install_packages ffmpeg=ffmpeg python3-srt python3-webvtt
    install_gstreamer
    install_packages gstreamer1.0-tools=gst-launch-1.0 gstreamer1.0-plugins-base gstreamer1.0-plugins-good
}

clang_sanitizes() {
    printf 'int main() { return 0; }\n' |
        clang++ -fsanitize=address,undefined -x c++ - -o /dev/null 2>/dev/null
}

# The sanitizers' runtime is a package of its own, under one name or another by release.
install_sanitizers() {
    local major
    install_packages clang=clang++
    if clang_sanitizes; then
        return 0
    fi
    major=$(clang++ -dumpversion | cut -d. -f1)
    missing=libclang-rt-$major-dev
    say "installing $missing"
    run_apt_get update
    run_apt_get install --no-install-recommends "$missing"
    clang_sanitizes || give_up "clang++ does not link a program with AddressSanitizer"
}

# configure FOLDER CMAKE-OPTION...: prepares a build in a folder of the checkout.
configure() {
    local folder=$root/$1 generator=() options=("${@:2}")
    [[ -e $folder/CMakeCache.txt ]] || generator=(-G Ninja)
    if [[ ${CI:-} == true ]]; then
        options+=(-DXTTML_WARNINGS_AS_ERRORS=ON)
    fi
    cmake -S "$root" -B "$folder" "${generator[@]}" "${options[@]}" >&2
}

# build FOLDER CMAKE-OPTION...: configures and builds.
build() {
    configure "$@"
    cmake --build "$root/$1" --parallel "$(nproc)" >&2
}
