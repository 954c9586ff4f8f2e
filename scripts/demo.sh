#!/usr/bin/env bash
# Builds the command line program, makes example data and plots them with every control.
set -euo pipefail
cd "$(dirname "$0")/.."

if (($# > 0)); then
    echo "usage: scripts/demo.sh"
    echo
    echo "Builds the program into build/demo and leaves data and pictures in out/demo."
    [[ $1 == --help || $1 == -h ]]
    exit
fi

build=build/demo
out=out/demo
launcher=()
if command -v ccache >/dev/null; then
    launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
    export CCACHE_NOHASHDIR=1
fi

# Where CMake has put a program.
program() {
    local path
    path=$(find "$build" -type f -name "$1" -perm -u+x -print -quit)
    [[ -n $path ]] || { echo "demo.sh: $build holds no program $1" >&2; exit 1; }
    echo "$path"
}

scripts/deps.sh
cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DZENDARA_BUILD_TESTS=OFF "${launcher[@]}"
cmake --build "$build" -j "$(nproc)" --target zendara zendara-example-data
zendara=$(program zendara)
example_data=$(program zendara-example-data)

mkdir -p "$out"
"$example_data" "$out"

controls=$("$zendara" controls | awk 'NF {print $1}')
for control in $controls; do
    for data in film49.csv film1225.dat; do
        "$zendara" plot "$out/$data" --control "$control" --size 300x200 -o "$out/$control-${data%.*}.png"
    done
done

echo
for data in film49.csv film1225.dat; do
    echo "$data"
    "$zendara" stats "$out/$data"
    echo
done

echo "The pictures are in $PWD/$out:"
(cd "$out" && ls -- *.png)
