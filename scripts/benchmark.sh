#!/usr/bin/env bash
# Builds the program for release with its benchmarks, runs them beside their peers and writes docs/performance.md.
#
#   scripts/benchmark.sh [quick] [part ...]
#
# "quick": a tenth of the repetitions, and of the Enters and reports of the day of work (its line says so). Parts: all when none
# is named; "list" prints them, "page" only writes the page. What a part leaves stands in build-bench/figures with the time of its
# run, so the page can be made piece by piece; a part that does not end in its time leaves nothing and is named in the page. All
# take some forty minutes, half of it for the day of work; wants a machine at rest.
# The peers of the plans are in mupdf-tools, that of the reports in ledger; a missing peer is named in the page, too.
#
# A new part is one line in "The parts" below. A program that uses the benchmark library is told in a table of
# scripts/performance_page.py; any other prints its own lines of the page (bench/figureline.h).
set -euo pipefail
top=$(cd "$(dirname "$0")/.." && pwd)
cd "$top"
build=build-bench
out=$build/figures
times=20
if [ "${1:-}" = quick ]; then
  times=3
  shift
fi
asked=("$@")
export QT_QPA_PLATFORM=offscreen TAMO_BENCH_PLANS=$top/$build/plans

# The parts: name, seconds that it may take, targets to build, program and arguments. "measured" are those of the benchmark
# library: each repetition is short and the peers take turns, so that both meet the same machine in the same mood.
parts() {
  part start 40 "start_window empty_window" bench/bench_start.sh $build
  measured files 60
  measured numbers 40
  measured rows 40
  measured reading 40
  measured reports 150
  measured takeoff 150
  measured pricing 60
  measured history 60
  measured plans 240 5
  part hold 120 longest_hold $build/bench/longest_hold data
  part refresh 60 live_refresh $build/bench/live_refresh data 500
  part items 60 bottom_line $build/bench/bottom_line data 300
  part likes 90 find_same $build/bench/find_same $((times > 3 ? 3 : 1))
  part day $((times > 3 ? 1200 : 400)) day_of_work env TMPDIR=/dev/shm $build/bench/day_of_work data \
    $((times > 3 ? 100000 : 10000))
}
# Name, seconds, and how often at most.
measured() {
  part "$1" "$2" "bench_$1" $build/bench/bench_$1 --benchmark_min_time=0.05 \
    --benchmark_repetitions=$((times < ${3:-$times} ? times : ${3:-$times})) \
    --benchmark_enable_random_interleaving=true --benchmark_format=json
}

wanted() { [ ${#asked[@]} -eq 0 ] || printf '%s\n' "${asked[@]}" | grep -qx "$1"; }
known() { printf '%s\n' "$1"; }
targets_of() { ! wanted "$1" || printf '%s\n' $3; }
run() {
  wanted "$1" || return 0
  local kind=txt begun=$SECONDS
  [[ $* != *--benchmark_format=json* ]] || kind=json
  printf '%-10s' "$1"
  rm -f "$out/$1".{txt,json}
  if timeout "$2" "${@:4}" >"$out/$1.unfinished" 2>"$out/$1.err"; then
    mv "$out/$1.unfinished" "$out/$1.$kind"
    echo "$((SECONDS - begun)) s"
  else
    rm -f "$out/$1.unfinished"
    echo "not finished after $((SECONDS - begun)) s: $(tail -1 "$out/$1.err")"
  fi
}
# Goes through the parts with one of the three above.
each() {
  eval "part() { $1 \"\$@\"; }"
  parts
}

case ${asked[0]:-} in
  list) each known && exit ;;
  page) ;;
  *)
    mapfile -t unknown < <(printf '%s\n' "${asked[@]}" | grep -vxFf <(each known) | grep .) || true
    [ ${#unknown[@]} -eq 0 ] || { echo "no such part: ${unknown[*]}"; exit 2; }
    scripts/benchmark_library.sh $build/library || true
    library=()
    [ ! -d $build/library/lib/cmake/benchmark ] || library=(-Dbenchmark_DIR="$top/$build/library/lib/cmake/benchmark")
    cmake --preset bench "${library[@]}" >/dev/null
    each targets_of | xargs cmake --build --preset bench -j"$(nproc)" --target | tail -1
    mkdir -p $out
    each run
    ;;
esac
each known | xargs python3 -B scripts/performance_page.py $out >$out/page.md
mv $out/page.md docs/performance.md
sed -n '/^|/p' docs/performance.md
