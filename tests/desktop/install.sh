#!/usr/bin/env bash
# The desktop integration as `cmake --install` lays it out: the menu entry
# passes desktop-file-validate, the list type is known to shared-mime-info for
# "*.lst" in either case, and the icon stands in every hicolor size.
#   install.sh <build folder>
set -euo pipefail
build=$1
root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT

cmake --install "$build" --prefix "$root/usr" >/dev/null
share=$root/usr/share
test -x "$root/usr/bin/lumenta"

entry=$share/applications/lumenta.desktop
desktop-file-validate "$entry"
grep -qx 'Exec=lumenta %F' "$entry"
grep -qx 'Name=ルメンタ' "$entry"
grep -qx 'Icon=lumenta' "$entry"
grep -qx 'MimeType=text/x-lumenta-list;' "$entry"

update-mime-database "$share/mime"
grep -q ':text/x-lumenta-list:\*\.lst' "$share/mime/globs2"
grep -q ':text/x-lumenta-list:\*\.LST:cs' "$share/mime/globs2"
test -f "$share/mime/text/x-lumenta-list.xml"

for size in 16 24 32 48 64 128 256; do
  icon=$share/icons/hicolor/${size}x${size}/apps/lumenta.png
  test -f "$icon" || { echo "missing $icon"; exit 1; }
  [ "$(identify -format '%m %wx%h' "$icon")" = "PNG ${size}x${size}" ] ||
    { echo "$icon is not a PNG of $size by $size"; exit 1; }
done
echo "desktop integration installed and valid"
