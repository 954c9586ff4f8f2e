#!/usr/bin/env bash
# Builds the project and runs every test. The last line is the closing line of ctest.
set -euo pipefail
cd "$(dirname "$0")/.."

usage() {
    cat <<'TEXT'
usage: scripts/test.sh [--all | --quick]

Installs missing packages, then builds with GCC and the address and undefined-behaviour
sanitizers and runs all tests.
  --all      also builds and tests with Clang, and compiles the core with libc++ 13;
             this is what happens where CI=true
  --quick    the tests with GCC alone, even where CI=true
TEXT
}

runs_all=false
[[ ${CI:-} == true ]] && runs_all=true
for option in "$@"; do
    case $option in
        --all) runs_all=true ;;
        --quick) runs_all=false ;;
        --help | -h) usage; exit 0 ;;
        *) echo "test.sh: unknown option $option" >&2; usage >&2; exit 2 ;;
    esac
done

jobs=$(nproc)
# The compilers beside GCC are left out when the first part took so long: the whole has to end within half an hour.
latest_start_of_clang=600   # seconds
latest_start_of_libcxx=1500 # seconds
logs=build/logs
launcher=()
if command -v ccache >/dev/null; then
    launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
    export CCACHE_NOHASHDIR=1
fi

headline() {
    printf '\n== %s (after %d s)\n' "$1" "$SECONDS"
}

# Configures, builds and tests one preset; the closing line of its ctest run stays in $closing_line.
build_and_test() {
    local preset=$1 status=0
    headline "$preset: build"
    cmake --preset "$preset" "${launcher[@]}"
    cmake --build --preset "$preset" -j "$jobs"
    headline "$preset: tests"
    ctest --preset "$preset" -j "$jobs" | tee "$logs/$preset.txt" || status=$?
    closing_line=$(grep -E '^[0-9]+% tests passed' "$logs/$preset.txt" || echo "no tests were found")
    if ((status != 0)) || [[ $closing_line == no* ]]; then
        printf '\n%s: %s\n' "$preset" "$closing_line"
        exit 1
    fi
}

# The core has to go into places whose C++ library is older than GCC's.
compile_core_with_libcxx() {
    headline "core with libc++"
    local version
    version=$(clang++ -stdlib=libc++ -std=c++20 -include cstddef -dM -E -x c++ /dev/null |
        awk '$2 == "_LIBCPP_VERSION" {print $3}')
    echo "libc++ version $version"
    find src \( -path src/platform -o -path src/files \) -prune -o -name '*.cpp' -print0 |
        xargs -0 -P "$jobs" -n 4 clang++ -stdlib=libc++ -std=c++20 -fsyntax-only -Iinclude \
            -ffp-contract=off -Wall -Wextra -Wpedantic -Wconversion -Werror
}

mkdir -p "$logs"
if $runs_all; then
    scripts/deps.sh --clang --libcxx
else
    scripts/deps.sh
fi

build_and_test dev
closing_line_of_gcc=$closing_line

if $runs_all; then
    if ((SECONDS < latest_start_of_clang)); then
        build_and_test clang
    else
        echo "clang: left out, the time is used up"
    fi
    if ((SECONDS < latest_start_of_libcxx)); then
        compile_core_with_libcxx
    else
        echo "libc++: left out, the time is used up"
    fi
fi

headline "done"
echo "$closing_line_of_gcc"
