#!/usr/bin/env bash
# Takes the pictures of the README anew from the real windows on the sample bid. Needs a build of the preset dev.
set -euo pipefail
cd "$(dirname "$0")/.."
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
QT_QPA_PLATFORM=offscreen build/tamo_pictures "$work" >/dev/null 2>&1
mkdir -p docs/pictures
for pair in Reports-recap:recap Pricing-materials:pricing RFSForm-takeoff:takeoff OST-plan:plan; do
  cp "$work/${pair%%:*}-light-100.png" "docs/pictures/${pair##*:}.png"
done
ls docs/pictures
