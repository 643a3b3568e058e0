#!/usr/bin/env bash
# Builds the library that the benchmarks measure with for release, into the folder given: the packaged one is a debug build.
# The source comes from the package's own source package (a deb-src line is wanted), or from its archive laid beside it as
# FOLDER.tar.gz. Nothing is done when it stands already.
set -euo pipefail
folder=$(mkdir -p "$1" && cd "$1" && pwd)
[ ! -e "$folder/lib/cmake/benchmark" ] || exit 0
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
if [ -e "$folder.tar.gz" ]; then
  cp "$folder.tar.gz" "$work/benchmark.orig.tar.gz"
else
  (cd "$work" && apt-get source --download-only benchmark >/dev/null 2>&1) ||
    { echo "no source of the benchmark library: the packaged one is used" && exit 1; }
fi
mkdir "$work/source"
tar -xf "$work"/benchmark*.orig.tar.* -C "$work/source" --strip-components=1
cmake -S "$work/source" -B "$work/build" -DCMAKE_BUILD_TYPE=Release -DBENCHMARK_ENABLE_TESTING=OFF \
  -DBENCHMARK_ENABLE_WERROR=OFF -DCMAKE_INSTALL_LIBDIR=lib -DCMAKE_INSTALL_PREFIX="$folder" >/dev/null
cmake --build "$work/build" -j"$(nproc)" >/dev/null
cmake --install "$work/build" >/dev/null
