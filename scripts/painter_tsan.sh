#!/usr/bin/env bash
# The painter under the thread sanitizer: builds the tests of the plans in build-tsan (no windows), plays those in which several
# threads read and paint, and paints the odd plans, and those of the folders given, with many threads at once. A minute when it
# is built. Without a compiler that has the sanitizer it says so and passes.
# Usage: scripts/painter_tsan.sh [FOLDER...]
set -euo pipefail
folders=()
for folder in "$@"; do folders+=("$(cd "$folder" && pwd)"); done
cd "$(dirname "$0")/.."
if ! echo 'int main() {}' | ${CXX:-c++} -fsanitize=thread -x c++ -o /dev/null - 2>/dev/null; then
  echo "no thread sanitizer here"
  exit 0
fi
cmake -S . -B build-tsan -G Ninja -DCMAKE_BUILD_TYPE=Debug "-DCMAKE_CXX_FLAGS_DEBUG=-O1 -g1" -DTAMO_TSAN=ON -DTAMO_WINDOWS=OFF \
  -DTAMO_PRECOMPILE=ON >/dev/null
cmake --build build-tsan -j"${TAMO_JOBS:-$(nproc)}" --target test_plans >/dev/null
export QT_QPA_PLATFORM=offscreen TSAN_OPTIONS="halt_on_error=1 suppressions=$PWD/scripts/tsan.supp"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
# The sanitizer has no children, so the plans are made beforehand.
python3 scripts/make_odd_pdfs.py "$work/odd" >/dev/null
export TAMO_ODD_PLANS=$work/odd
timeout 300 build-tsan/tests/test_plans --gtest_brief=1 --gtest_filter='OddPlans.A*:OddPlans.The*:RealPlan.*'
for folder in "$work/odd" "${folders[@]}"; do
  TAMO_PAINTED_PLANS=$folder timeout 300 build-tsan/tests/test_plans --gtest_brief=1 --gtest_filter='PaintedFolder.*'
done
