#!/usr/bin/env bash
# From the start to the visible window, offscreen, beside an empty Qt window: both whole processes, in turn, medians of
# twenty-one runs. Argument: a build folder of the preset bench.
set -euo pipefail
bench=$1/bench
data=$(cd "$(dirname "$0")/../data" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/program" "$work/home"
cp "$data"/*.pdf "$work/program/"
export QT_QPA_PLATFORM=offscreen

micros() {
  local begun
  begun=$(date +%s%N)
  "$@" >/dev/null 2>&1
  echo $((($(date +%s%N) - begun) / 1000))
}
median() { sort -n | sed -n 11p; }

"$bench/start_window" "$work/program" "$work/home" >/dev/null 2>&1
for _ in $(seq 21); do
  micros "$bench/empty_window" >>"$work/empty"
  micros "$bench/start_window" "$work/program" "$work/home" >>"$work/tamo"
done
empty=$(median <"$work/empty")
tamo=$(median <"$work/tamo")
echo "empty window $empty us, Tamo $tamo us, ratio $((tamo * 100 / empty)) / 100"
