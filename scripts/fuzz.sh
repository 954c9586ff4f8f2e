#!/usr/bin/env bash
# Runs every fuzzer for a short while, as a smoke test.
set -euo pipefail
cd "$(dirname "$0")/.."

seconds=${1:-30}
if [[ ! $seconds =~ ^[0-9]+$ ]]; then
    echo "usage: scripts/fuzz.sh [SECONDS]"
    echo
    echo "Runs each fuzzer for so many seconds (30). Inputs that it finds are kept in out/fuzz."
    [[ $seconds == --help || $seconds == -h ]]
    exit
fi

launcher=()
if command -v ccache >/dev/null; then
    launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
    export CCACHE_NOHASHDIR=1
fi

scripts/deps.sh --clang
cmake --preset fuzz "${launcher[@]}"
cmake --build --preset fuzz -j "$(nproc)" --target fuzzers

for fuzzer in build/fuzz/tests/fuzz/fuzz_*; do
    [[ -f $fuzzer && -x $fuzzer ]] || continue
    name=$(basename "$fuzzer")
    corpus=out/fuzz/$name
    mkdir -p "$corpus"
    echo "== $name, $seconds s"
    "$fuzzer" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 -print_final_stats=0 -verbosity=1 \
        -artifact_prefix="$corpus-" "$corpus" 2>&1 | tail -n 30
done
