#!/usr/bin/env bash
# Installs the Debian packages that a build needs and that are missing. Where none is missing it does nothing.
set -euo pipefail

usage() {
    cat <<'TEXT'
usage: scripts/deps.sh [--clang] [--libcxx]

Installs what is missing of the packages for building and testing with GCC.
  --clang    also Clang with its formatter, linter and sanitizers
  --libcxx   also the C++ library of 2021 (libc++ 13), which the core is kept compatible with
TEXT
}

# "a|b" means that either will do; the first one that the system offers is taken.
packages=(g++ cmake ninja-build "pkg-config|pkgconf"
          libgtest-dev libgmock-dev libbenchmark-dev
          nlohmann-json3-dev libcli11-dev libfreetype-dev libpng-dev libdeflate-dev libcairo2-dev
          fonts-liberation fonts-urw-base35
          poppler-utils) # the tests read and show pages with it
clang_packages=(clang clang-tidy clang-format "libclang-rt-14-dev|libclang-rt-dev")
libcxx_packages=(clang "libc++-13-dev|libc++-dev" "libc++abi-13-dev|libc++abi-dev")

for option in "$@"; do
    case $option in
        --clang) packages+=("${clang_packages[@]}") ;;
        --libcxx) packages+=("${libcxx_packages[@]}") ;;
        --help | -h) usage; exit 0 ;;
        *) echo "deps.sh: unknown option $option" >&2; usage >&2; exit 2 ;;
    esac
done

is_installed() {
    # One line for each architecture that knows the package.
    dpkg-query -W -f='${db:Status-Status}\n' "$1" 2>/dev/null | grep -qx installed
}

is_offered() {
    local candidate
    candidate=$(apt-cache policy "$1" 2>/dev/null | awk '/Candidate:/ {print $2; exit}')
    [[ -n $candidate && $candidate != "(none)" ]]
}

any_installed() {
    local alternative
    for alternative in ${1//|/ }; do
        is_installed "$alternative" && return 0
    done
    return 1
}

first_offered() {
    local alternative
    for alternative in ${1//|/ }; do
        is_offered "$alternative" && { echo "$alternative"; return 0; }
    done
    return 1
}

missing=()
for package in "${packages[@]}"; do
    any_installed "$package" || missing+=("$package")
done
((${#missing[@]} == 0)) && exit 0

if ! command -v apt-get >/dev/null; then
    echo "deps.sh: there is no apt-get here. Please install by hand what these Debian packages hold: ${missing[*]}" >&2
    exit 1
fi

as_root=()
if ((EUID != 0)); then
    if ! command -v sudo >/dev/null; then
        echo "deps.sh: root rights are needed to install: ${missing[*]}" >&2
        exit 1
    fi
    as_root=(sudo)
fi

apt_get() {
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q "$@"
}

# A fresh system image knows no packages at all until the lists have been fetched.
has_fresh_lists=false
fetch_lists() {
    apt_get update
    has_fresh_lists=true
}

choose() {
    chosen=()
    local package
    for package in "${missing[@]}"; do
        chosen+=("$(first_offered "$package")") || return 1
    done
}

install_chosen() {
    apt_get install -y --no-install-recommends "${chosen[@]}"
}

if ! choose; then
    fetch_lists
    if ! choose; then
        for package in "${missing[@]}"; do
            first_offered "$package" >/dev/null || echo "deps.sh: this system offers no package $package" >&2
        done
        exit 1
    fi
fi

echo "deps.sh: installing ${chosen[*]}"
if ! install_chosen; then
    # Old lists name files that the servers have replaced since.
    $has_fresh_lists && exit 1
    fetch_lists
    choose
    install_chosen
fi
