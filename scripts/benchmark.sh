#!/usr/bin/env bash
# Builds the program for release with its benchmarks, runs them all beside their peers and writes docs/performance.md.
# Arguments: none for all, "quick" for a tenth of the repetitions. Takes about five minutes; wants a machine at rest.
# The peers of the plans are in mupdf-tools, that of the reports in ledger; a missing peer is named in the page.
set -euo pipefail
top=$(cd "$(dirname "$0")/.." && pwd)
cd "$top"
build=build-bench
times=20
[ "${1:-}" = quick ] && times=3
export QT_QPA_PLATFORM=offscreen

[ -f $build/build.ninja ] || cmake --preset bench >/dev/null
cmake --build --preset bench -j"$(nproc)" | tail -1
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT

# Each repetition is short and the peers take turns, so that both meet the same machine in the same mood.
for name in files numbers rows reading reports takeoff pricing plans; do
  echo "bench_$name"
  $build/bench/bench_$name --benchmark_min_time=0.05 --benchmark_repetitions=$times \
    --benchmark_enable_random_interleaving=true --benchmark_format=json >"$out/$name.json" 2>"$out/$name.err" || cat "$out/$name.err"
done
echo "longest_hold"
$build/bench/longest_hold data >"$out/hold.txt" 2>/dev/null
echo "live_refresh"
$build/bench/live_refresh data 500 >"$out/refresh.txt" 2>/dev/null
echo "day_of_work"
$build/bench/day_of_work data >"$out/day.txt" 2>/dev/null
echo "bench_start"
bench/bench_start.sh $build >"$out/start.txt"
python3 -B scripts/performance_page.py "$out" >docs/performance.md
sed -n '/^|/p' docs/performance.md
