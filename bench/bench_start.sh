#!/usr/bin/env bash
# From the start to the visible window, offscreen, beside an empty Qt window: both whole processes, in turn, medians of
# eleven runs. The program is started and ended by the player, so its figure holds the player's own work, too.
# Argument: a build folder that holds empty_window (preset bench) and one that holds tamo_scenario (preset dev or release).
set -euo pipefail
bench=$1
build=$2
data=$(cd "$(dirname "$0")/../data" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/program" "$work/home"
cp "$data"/*.pdf "$work/program/"
printf 'start\nstop\n' >"$work/start.scenario"
export QT_QPA_PLATFORM=offscreen

millis() {
  local begun
  begun=$(date +%s%N)
  "$@" >/dev/null 2>&1
  echo $((($(date +%s%N) - begun) / 1000))
}
median() { sort -n | sed -n 6p; }

for _ in 1 2 3 4 5 6 7 8 9 10 11; do
  millis "$bench/empty_window" >>"$work/empty"
  millis "$build/tamo_scenario" --program "$work/program" --home "$work/home" --windows "$work/start.scenario" >>"$work/tamo"
done
empty=$(median <"$work/empty")
tamo=$(median <"$work/tamo")
echo "empty window $empty us, Tamo $tamo us, ratio $((tamo * 100 / empty)) / 100"
