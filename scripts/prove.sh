#!/usr/bin/env bash
# The long run of the proving ground: kills, failing reads and writes, lost power, a folder that comes and goes, two programs at
# one folder. Writes its figures into docs/reliability.md. Argument: "quick" for a hundredth of all. The whole takes about an hour
# on a machine at rest and runs at low priority; TAMO_PROVE_SECONDS bounds each of its parts, TAMO_PROVE_BUILD names another
# build folder (made with the preset dev).
set -euo pipefail
cd "$(dirname "$0")/.."
build=${TAMO_PROVE_BUILD:-build}
seconds=${TAMO_PROVE_SECONDS:-3600}
part=1
[ "${1:-}" = quick ] && part=100
if [ -z "${TAMO_PROVE_BUILD:-}" ]; then
  [ -f build/build.ninja ] || cmake --preset dev >/dev/null
  cmake --build build --target tamo_scenario tamo_proving | tail -n 1
fi

figures=$(mktemp)
trap 'rm -f "$figures"' EXIT
wrong=0
prove() {
  local words=$1
  shift
  nice -n 19 python3 -B tests/proving/prove.py "$@" --seconds "$seconds" --words "$words" --player "$build/tamo_scenario" \
    --shim "$build/tests/proving/tamo_proving.so" --data data --figures "$figures" || wrong=1
}

prove "Killed at each file operation in turn, before it and within it, bid after bid" kills --every --most $((10000 / part))
prove "A failing write (access, input/output, full disk, half a write): one, five in a row, all from there on" writing --most $((5000 / part))
prove "A failing read, the same" reading --most $((5000 / part))
prove "Power lost, what was not synced dropped or reordered" power --most $((10000 / part))
prove "The folder gone for 5, 30 or 150 file operations, then there again" away --most $((2000 / part))
prove "Killed at each file operation while bottom line items wait for their last step; what was entered is offered" waiting --most $((1000 / part))
prove "Two programs at one folder, each file operation of both delayed at random" two --most $((1000 / part))

python3 - "$figures" docs/reliability.md <<'END'
import sys
figures, page = open(sys.argv[1]).read(), open(sys.argv[2]).read()
before, rest = page.split("<!-- figures -->\n")
_, after = rest.split("<!-- end of the figures -->\n")
table = "\n| what | done | wrong | started again | seconds |\n|---|---|---|---|---|\n" + figures + "\n"
open(sys.argv[2], "w").write(before + "<!-- figures -->\n" + table + "<!-- end of the figures -->\n" + after)
END
exit $wrong
