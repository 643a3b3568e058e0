#!/usr/bin/env bash
# Plays a folder of PDFs through the plan window: open, measure and count on the first and the last page, save, open again, take
# back, save. Two other programs judge the copy: qpdf its structure, pdftoppm that it paints. Prints a table and what was not
# right; the PDFs themselves are only read.
# Usage: scripts/real_pdfs.sh FOLDER [BUILD]    BUILD holds tamo_scenario; "build" when not given.
set -uo pipefail
folder=$(cd "$1" && pwd)
cd "$(dirname "$0")/.."
build=$(cd "${2:-build}" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

steps() { # of one plan; the copy of the marked plan is left for the judges between the two plays
  cat <<STEPS
copy $1 Jobs/Plan.pdf
write Tamo/Projects/Unknown Job ID/Plans/readme.txt <<END
END
start
menu Tamo.Settings1
click Settings.Option2
click Settings.Command1
focus OST.PlanLocation
enter {home}/Jobs/Plan.pdf
expect shown = Plan.pdf
menu OST.Quarter
answer Yes
plan line 20 20 92 20
plan page 100000
answer Yes
plan circle 40 40
menu OST.Save
expect OST.PlanProblem =
STEPS
}
again() {
  cat <<STEPS
start
focus OST.PlanLocation
enter {home}/Tamo/Projects/Unknown Job ID/Plans/Plan-Marked.pdf
expect shown = Plan-Marked.pdf
expect marks contains circle
expect marks contains line
focus OST.picPdfDraw
click OST.Command2
click OST.Command2
menu OST.Save
expect OST.PlanProblem =
STEPS
}
play() { # scenario, log
  timeout 300 "$build/tamo_scenario" --program "$work/program" --home "$work/home" --clock 2026-01-15 "$1" >"$2" 2>&1
}
judge() { # before, after, "warns" and "errors" count as they did before
  local was now
  qpdf --check "$1" >/dev/null 2>&1; was=$?
  qpdf --check "$2" >/dev/null 2>&1; now=$?
  [ $now -le $was ] || [ $now -eq 0 ] || { echo "qpdf"; return; }
  timeout 120 pdftoppm -r 20 -l 1 "$1" "$work/was" 2>/dev/null || return
  timeout 120 pdftoppm -r 20 -l 1 "$2" "$work/now" 2>/dev/null || echo "pdftoppm"
  rm -f "$work"/was* "$work"/now*
}

declare -A count
note() { count[$1]=$((${count[$1]:-0} + 1)); [ "$1" = right ] || printf '%-24s %s\n' "$1" "$2"; }
while IFS= read -r -d '' plan; do
  rm -rf "$work/home" "$work/program"; mkdir -p "$work/home" "$work/program"
  cp data/Blank.pdf data/About.pdf "$work/program/"
  steps "$plan" >"$work/first.scenario"
  again >"$work/second.scenario"
  marked="$work/home/Tamo/Projects/Unknown Job ID/Plans/Plan-Marked.pdf"
  if ! play "$work/first.scenario" "$work/log"; then
    grep -q 'expect shown' "$work/log" && note "not opened" "$plan" || note "not marked or saved" "$plan"
    sed 's/^/    /' "$work/log" | tail -4
  elif found=$(judge "$plan" "$marked"); [ -n "$found" ]; then
    note "copy: $found" "$plan"
  elif ! play "$work/second.scenario" "$work/log"; then
    note "not taken back" "$plan"
    sed 's/^/    /' "$work/log" | tail -4
  elif found=$(judge "$plan" "$marked"); [ -n "$found" ]; then
    note "taken back: $found" "$plan"
  else
    note right "$plan"
  fi
done < <(find "$folder" -iname '*.pdf' -print0 | sort -z)
echo
for what in "${!count[@]}"; do printf '%6d  %s\n' "${count[$what]}" "$what"; done | sort -rn
