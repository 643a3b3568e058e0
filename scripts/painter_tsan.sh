#!/usr/bin/env bash
# The painter under the thread sanitizer: builds the tests of the plans in build-tsan (no windows) and plays those in which
# several threads read and paint. Without a compiler that has the sanitizer it says so and passes.
set -euo pipefail
cd "$(dirname "$0")/.."
if ! echo 'int main() {}' | ${CXX:-c++} -fsanitize=thread -x c++ -o /dev/null - 2>/dev/null; then
  echo "no thread sanitizer here"
  exit 0
fi
cmake -S . -B build-tsan -G Ninja -DCMAKE_BUILD_TYPE=Debug "-DCMAKE_CXX_FLAGS_DEBUG=-O1 -g1" -DTAMO_TSAN=ON -DTAMO_WINDOWS=OFF \
  ${TAMO_CMAKE_ARGUMENTS:-} >/dev/null
cmake --build build-tsan -j"${TAMO_JOBS:-$(nproc)}" --target test_plans >/dev/null
TSAN_OPTIONS="halt_on_error=1 suppressions=$PWD/scripts/tsan.supp" \
  build-tsan/tests/test_plans --gtest_brief=1 --gtest_filter='OddPlans.A*:OddPlans.The*:RealPlan.*:BadPlans.AGood*'
