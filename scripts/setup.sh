#!/usr/bin/env bash
# Installs what is missing on a Debian 12 machine. Argument: run (to build and use the program) or check (also the tests
# and linters). Quiet when everything is there.
set -euo pipefail

run_packages=(g++ cmake ninja-build ccache python3 qt6-base-dev libgl-dev libmupdf-dev libjbig2dec0-dev libopenjp2-7-dev
  libjpeg-dev libfreetype-dev libharfbuzz-dev libgumbo-dev libmujs-dev zlib1g-dev fonts-dejavu-core fonts-noto-mono
  libxlsxwriter-dev qt6-charts-dev libqt6opengl6-dev qt6-qpa-plugins xvfb xauth)
check_packages=(git libgtest-dev libgmock-dev libbenchmark-dev clang clang-tidy clang-format libclang-rt-14-dev
  poppler-utils qpdf ghostscript file dpkg-dev lintian desktop-file-utils appstream)

packages=("${run_packages[@]}")
[ "${1:-run}" = check ] && packages+=("${check_packages[@]}")

missing=()
for package in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installing: ${missing[*]}"
sudo=()
if [ "$(id -u)" -ne 0 ]; then
  command -v sudo >/dev/null || { echo "Run this as root, or install sudo: packages are missing."; exit 1; }
  sudo=(sudo)
fi
export DEBIAN_FRONTEND=noninteractive
"${sudo[@]}" apt-get update -qq
"${sudo[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
