#!/usr/bin/env bash
# From the start to the first frame, offscreen, beside an empty Qt window: both whole processes, in turn, medians of
# twenty-one runs; once with no project, once with one that is opened, once with one that another program has open. Argument: a build folder of the preset bench.
set -euo pipefail
bench=$1/bench
data=$(cd "$(dirname "$0")/../data" && pwd)
work=$(mktemp -d)
owner=
trap '[ -z "$owner" ] || kill "$owner"; rm -rf "$work"' EXIT
project=$work/home/Tamo/Projects/07-2611001
mkdir -p "$work/program" "$work/bare" "$project"/{Rooms,Systems,ATOs}
cp "$data"/*.pdf "$work/program/"
printf '07-2611001   Large\r\n' >"$work/home/Tamo/Jobs.lst"
printf '07-2611001\r\nLarge\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n' >"$project/JobNFO.tamo"
export QT_QPA_PLATFORM=offscreen

micros() {
  local begun
  begun=$(date +%s%N)
  "$@" >/dev/null 2>&1
  echo $((($(date +%s%N) - begun) / 1000))
}
median() { sort -n | sed -n 11p; }

"$bench/start_window" "$work/program" "$work/bare" >/dev/null 2>&1
plans=${TAMO_BENCH_PLANS:-${TMPDIR:-/tmp}/tamo-bench-plans}
[ -e "$plans/clip.pdf" ] || python3 "$(dirname "$0")/make_plans.py" "$plans"
for _ in $(seq 21); do
  micros "$bench/empty_window" >>"$work/empty"
  micros "$bench/empty_window" Word >>"$work/word"
  micros "$bench/start_window" "$work/program" "$work/bare" >>"$work/tamo"
  micros "$bench/start_window" "$work/program" "$work/home" >>"$work/project"
  "$bench/start_window" "$work/program" "$work/home" "$plans/set.pdf" >>"$work/plan" 2>/dev/null
done
empty=$(median <"$work/empty")
# As bench/figureline.h has it: what, milliseconds, its peer, that one's, the limit of the ratio.
tell() { awk -v took="$2" -v peer="$empty" -v limit="$3" -v what="$1" 'BEGIN {
  printf "figure\tFrom the start to the first frame: %s\t%g\tan empty Qt window\t%g\t%g\tms\n", what, took / 1000, peer / 1000, limit}'; }
tell "a window with one word, for which fonts are sought" "$(median <"$work/word")" 0
"$bench/start_window" "$work/program" "$work/home" "$work/ready" >/dev/null 2>&1 &
owner=$!
for _ in $(seq 100); do
  [ -e "$work/ready" ] && break
  sleep 0.1
done
for _ in $(seq 21); do
  begun=$(date +%s%N)
  status=0
  "$bench/start_window" "$work/program" "$work/home" >/dev/null 2>&1 || status=$?
  [ $status = 3 ] || { echo "the second program was not told that the project is open" && exit 1; }
  echo $((($(date +%s%N) - begun) / 1000)) >>"$work/second"
done
tell "Tamo" "$(median <"$work/tamo")" 1.5
tell "Tamo with a project" "$(median <"$work/project")" 1.5
tell "Tamo with a project that is open elsewhere" "$(median <"$work/second")" 1.5
printf 'figure\tFrom the first frame to the coarse picture of a plan of 60 MB\t%s\ta blink\t100\t1\tms\n' "$(median <"$work/plan")"
