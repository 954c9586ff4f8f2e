#!/usr/bin/env bash
# Draws the pictures of the documentation anew: one of each control, from the example data.
set -euo pipefail
cd "$(dirname "$0")/.."

case ${1:-} in
    "") ;;
    --help | -h)
        echo "usage: scripts/docs_pictures.sh"
        echo "Draws docs/pictures/*.png with the Release build in build/demo, which it makes."
        exit 0
        ;;
    *) echo "docs_pictures.sh: unknown option $1" >&2; exit 2 ;;
esac

scripts/deps.sh
cmake -S . -B build/demo -G Ninja -DCMAKE_BUILD_TYPE=Release -DZENDARA_BUILD_TESTS=OFF
cmake --build build/demo --target zendara zendara-example-data
zendara=build/demo/apps/zendara/zendara
data=$(mktemp -d)
trap 'rm -rf "$data"' EXIT
build/demo/examples/zendara-example-data "$data"

# What shows a control best, beside the usual settings.
settings_of() {
    case $1 in
        ZvPlot2D) echo "--set ResolutionX=2 --set ResolutionY=2 --set ShowSites=true" ;;
        ZvPlot2DS) echo "--set ResolutionX=2 --set ResolutionY=2 --set SigmaRange=1" ;;
        ZvPlot2DC) echo "--set PlotColored=Ten_ColorPlot --set Resolution=HighQuality" ;;
        ZvPlot3D | ZvPlot3DS) echo "--set XResolution=4 --set YResolution=4" ;;
        ZvPlot3DB) echo "--set BeamScale=1" ;;
        ZvHistogram) echo "--set Resolution=12" ;;
        ZvLineScan) echo "--set angle=60 --set ShowSites=true" ;;
        *) echo "" ;;
    esac
}

for control in $("$zendara" controls | awk 'NF {print $1}'); do
    caption=(--set PlotCaption="Film thickness")
    [[ $control == ZvHistogram ]] && caption=() # it has none
    # shellcheck disable=SC2046 # the settings are words
    "$zendara" plot "$data/film49.csv" --control "$control" --size 300x200 --pixels 720x480 \
        "${caption[@]}" $(settings_of "$control") -o "docs/pictures/$control.png"
done
(cd docs/pictures && ../../"$zendara" run ../../examples/dialog_pictures.json)
ls -1 docs/pictures
