#!/usr/bin/env bash
# Builds the program for release with its benchmarks, runs them beside their peers and writes docs/performance.md.
# Arguments: "quick" for a tenth of the repetitions; then the names of the parts to run, all when none is named. What a part
# leaves stands in build-bench/figures, so that the page can be made piece by piece. All takes about six minutes; wants a
# machine at rest. The peers of the plans are in mupdf-tools, that of the reports in ledger; a missing peer is named in the page.
set -euo pipefail
top=$(cd "$(dirname "$0")/.." && pwd)
cd "$top"
build=build-bench
times=20
if [ "${1:-}" = quick ]; then
  times=3
  shift
fi
parts=("$@")
export QT_QPA_PLATFORM=offscreen

scripts/benchmark_library.sh $build/library || true
if [ -d $build/library/lib/cmake/benchmark ]; then
  cmake --preset bench -Dbenchmark_DIR="$top/$build/library/lib/cmake/benchmark" >/dev/null
else
  cmake --preset bench >/dev/null
fi
cmake --build --preset bench -j"$(nproc)" | tail -1
out=$build/figures
mkdir -p $out

wanted() { [ ${#parts[@]} -eq 0 ] || printf '%s\n' "${parts[@]}" | grep -qx "$1"; }
# A part that prints its figures itself: part, file, program and its arguments.
printed() {
  wanted "$1" || return 0
  echo "$1"
  "${@:3}" >"$out/$2.txt" 2>/dev/null || rm -f "$out/$2.txt"
}

# Each repetition is short and the peers take turns, so that both meet the same machine in the same mood.
for name in files numbers rows reading reports takeoff pricing history plans; do
  wanted $name || continue
  echo "$name"
  $build/bench/bench_$name --benchmark_min_time=0.05 --benchmark_repetitions=$times \
    --benchmark_enable_random_interleaving=true --benchmark_format=json >"$out/$name.json" 2>"$out/$name.err" || cat "$out/$name.err"
done
printed hold hold $build/bench/longest_hold data
printed refresh refresh $build/bench/live_refresh data 500
printed items items $build/bench/bottom_line data 300
printed day day $build/bench/day_of_work data
printed likes likes $build/bench/find_same $((times > 3 ? 3 : 1))
printed start start bench/bench_start.sh $build
python3 -B scripts/performance_page.py "$out" >docs/performance.md
sed -n '/^|/p' docs/performance.md
