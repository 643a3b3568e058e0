#!/usr/bin/env bash
# Makes the .deb of a build folder, as it stands there, and looks at it as a distribution does: lintian, the entry of the menu,
# the description for software centres, the man page, and whether what the texts name is there. Argument: the build folder.
set -euo pipefail
cd "$(dirname "$0")/.."
build=$(realpath "${1:-build}")
made=$(mktemp -d)
trap 'rm -rf "$made"' EXIT
failed=0
problem() { echo "$*"; failed=1; }

desktop-file-validate data/desktop/tamo.desktop || failed=1
appstreamcli validate --no-net data/desktop/tamo.metainfo.xml || failed=1
said=$(LC_ALL=C.UTF-8 MANROFFSEQ='' man --warnings -E UTF-8 -l -Tutf8 -Z data/desktop/tamo.1 2>&1 >/dev/null || true)
[ -z "$said" ] || problem "man page: $said"

(cd "$made" && cpack --config "$build/CPackConfig.cmake" -G DEB -B "$made" >"$made/log" 2>&1) || { cat "$made/log"; exit 1; }
package=$(find "$made" -maxdepth 1 -name '*.deb')
lintian --allow-root --fail-on error,warning --tag-display-limit 0 "$package" || failed=1

dpkg-deb -x "$package" "$made/root"
doc=$made/root/usr/share/doc/tamo
for file in "$doc/copyright" "$doc/changelog.gz" "$doc/changelog.Debian.gz" "$made/root/usr/share/man/man1/tamo.1.gz" \
  "$made"/root/usr/lib/tamo/Sample/Tamo/Jobs.lst "$made/root/usr/share/applications/tamo.desktop" "$made/root/usr/bin/tamo"; do
  [ -e "$file" ] || problem "not in the package: ${file#"$made/root"}"
done
grep -q '^MimeType=application/pdf;' "$made/root/usr/share/applications/tamo.desktop" || problem "no MimeType for plans"
# Each picture and page that a packaged text points to is there.
while IFS=: read -r text link; do
  target=$(dirname "$text")/${link%%#*}
  [ -e "$target" ] || problem "${text#"$made/root"} names $link, which is not in the package"
done < <(grep -oP '\]\(\K(?!https?:)[^)#]+' -r --include='*.md' "$doc" -H)
# The program starts from where it lies and finds its own files.
"$made"/root/usr/lib/tamo/tamo list --data "$made"/root/usr/lib/tamo/Sample/Tamo | grep -q 'Larkspur' ||
  problem "the packaged program does not read the packaged sample"
exit $failed
