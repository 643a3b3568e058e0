#!/usr/bin/env bash
# Plays the sample bid on a virtual screen: prints the recap and saves pictures of the main windows.
# Argument: the build folder that holds tamo_scenario.
set -euo pipefail
cd "$(dirname "$0")/.."
build=$1
out=$build/pictures
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$out" "$work/program" "$work/home"
cp -r data/Blank.pdf data/About.pdf data/Docs "$work/program/"
cp -r data/Sample/Tamo "$work/home/"
chmod -R u+w "$work"

sed "s|{pictures}|$out|g" scripts/play_sample.scenario >"$work/sample.scenario"
play=("$build/tamo_scenario" --program "$work/program" --home "$work/home" --clock "$(date +%F)" --windows "$work/sample.scenario")
if command -v xvfb-run >/dev/null; then
  QT_QPA_PLATFORM=xcb xvfb-run -a -s '-screen 0 1366x768x24' "${play[@]}" || QT_QPA_PLATFORM=offscreen "${play[@]}"
else
  QT_QPA_PLATFORM=offscreen "${play[@]}"
fi
echo
echo "Pictures of the windows:"
ls "$out"/*.png
