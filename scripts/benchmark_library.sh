#!/usr/bin/env bash
# Builds the library that the benchmarks measure with for release, into the folder given: the packaged one is a debug build.
# The source comes from the package's own source package, or from its archive laid beside it as FOLDER.tar.gz. Nothing is done
# when it stands already.
set -euo pipefail
folder=$(mkdir -p "$1" && cd "$1" && pwd)
[ ! -e "$folder/lib/cmake/benchmark" ] || exit 0
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
# The machine's own package sources, asked for source packages, in lists of their own: nothing of the machine is changed.
download() {
  local parts=$work/parts file
  mkdir -p "$parts" "$work"/{lists,cache/archives}/partial
  for file in /etc/apt/sources.list /etc/apt/sources.list.d/*; do
    [ ! -f "$file" ] || sed -E 's/^(Types:).*/\1 deb-src/; s/^deb( |\t)/deb-src\1/' "$file" >"$parts/$(basename "$file")"
  done
  local apt=(apt-get -o Dir::Etc::SourceList=/dev/null -o Dir::Etc::SourceParts="$parts" -o Dir::State::Lists="$work/lists"
    -o Dir::Cache="$work/cache")
  # A source that has no source packages is no reason to stop.
  "${apt[@]}" update || true
  (cd "$work" && "${apt[@]}" source --download-only benchmark)
}
if [ -e "$folder.tar.gz" ]; then
  cp "$folder.tar.gz" "$work/benchmark.orig.tar.gz"
else
  download >/dev/null 2>&1 ||
    { echo "no source of the benchmark library: the packaged one is used" && exit 1; }
fi
mkdir "$work/source"
tar -xf "$work"/benchmark*.orig.tar.* -C "$work/source" --strip-components=1
cmake -S "$work/source" -B "$work/build" -DCMAKE_BUILD_TYPE=Release -DBENCHMARK_ENABLE_TESTING=OFF \
  -DBENCHMARK_ENABLE_WERROR=OFF -DCMAKE_INSTALL_LIBDIR=lib -DCMAKE_INSTALL_PREFIX="$folder" >/dev/null
cmake --build "$work/build" -j"$(nproc)" >/dev/null
cmake --install "$work/build" >/dev/null
