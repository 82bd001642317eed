#!/usr/bin/env bash
# The whole program on hostile settings and a hostile list, under a virtual X
# server (run through xvfb-run). The fresh home's settings folder holds a
# named pipe as Drives.txt, a link to a device of the test's own as
# CommandList.txt, random bytes as ExtType.dat, 5 MB of text as
# SendToList.txt, a number beyond any as PictureSizeAllowVal.dat, and staged
# files that a killed write left two minutes ago. The list names a picture,
# then a named pipe (the next page, prepared ahead), a line of a million "@",
# a line of 2 MB and a damaged Shift-JIS name. A window must come within
# 10 s and the state dump answer; the pages turn; the program ends with 0.
# Then nothing outside the fresh home has changed, the pipe, the link and
# the files are as they were, and no staged file is left.
#   hostile.sh <lumenta> <source folder> <output folder>
set -euo pipefail
exe=$1
src=$2
out=$3
mkdir -p "$out"
# shellcheck source-path=SCRIPTDIR source=lib.sh
source "$(dirname "$0")/lib.sh"
# shellcheck source-path=SCRIPTDIR source=hostile_lib.sh
source "$(dirname "$0")/hostile_lib.sh"

outside=$(mktemp -d) # what the links name, beside the fresh home
trap 'cleanup; rm -rf "$outside"' EXIT

mkfifo "$settings/Drives.txt"
make_device "$outside/device"
ln -s "$outside/device" "$settings/CommandList.txt"
head -c 65536 /dev/urandom >"$settings/ExtType.dat"
head -c 5000000 < <(yes 'Z:\usr\bin\xdg-open ,AUTO_START, .JPG') >"$settings/SendToList.txt"
printf '1e400\r\n' >"$settings/PictureSizeAllowVal.dat"
(exit 0) &
dead=$!
wait "$dead"
for name in DirecData.ran TempList.Lst; do
  printf 'cut' >"$settings/.$name.lumenta-$dead-k1ll3d"
  touch -d '-2 min' "$settings/.$name.lumenta-$dead-k1ll3d"
done

mkdir -p "$home/pics"
convert -size 320x240 xc:navy "$home/pics/first.png"
mkfifo "$home/pics/next.jpg"
{
  printf 'C:\\pics\\first.png\r\n'
  printf 'C:\\pics\\next.jpg\r\n'
  printf 'C:\\pics\\at.jpg '
  head -c 1000000 /dev/zero | tr '\0' '@'
  printf '=\r\n'
  printf 'C:\\pics\\first.png @COMMENT=<<<<<'
  head -c 2000000 /dev/zero | tr '\0' 'x'
  printf ' ENDCOMMENT\r\n'
  printf 'C:\\pics\\\x85\x40.jpg @WITH=C:\\pics\\a.wav ENDWITH\r\n'
} >"$home/hostile.lst"

before_outside=$(fingerprint "$outside")
before_settings=$(fingerprint "$settings" | grep -v -e DirecData.ran -e '\.lumenta-')
before_devices=$(stat -c '%n %F %t:%T' /dev/zero /dev/null)

HOME=$home QT_QPA_PLATFORM=xcb "$exe" "$home/hostile.lst" &
pid=$!
# Main has begun (and the dump listens) once StartFromWhere.dat is written.
for _ in $(seq 1 100); do
  [ -f "$settings/StartFromWhere.dat" ] && dump &&
    grep -q '^Shown=FormMain' "$settings/StateDump.txt" && break
  sleep 0.1
done
grep -q '^Shown=FormMain' "$settings/StateDump.txt" 2>/dev/null ||
  fail "no window within 10 s"
await '^TextTotal=5' || fail "the list didn't open with its 5 pages"
import -window root "$out/hostile_list_view.png"

key Escape # the list view ends
await '^ListReady=True' || fail "the list view didn't end"
await '^TextFileName=.*first\.png' || fail "the first page isn't shown"
key Next # the named pipe: no file to show
await '^PicNo=2' || fail "the page didn't turn to the pipe"
key Next
await '^PicNo=3' || fail "the page didn't turn to the million \"@\""
key Next
await '^TextFileName=.*first\.png' || fail "the page with 2 MB of comment isn't shown"
import -window root "$out/hostile_long_comment.png"

click 'FormMain\.CommandExit'
code=0
await_end "$pid" 100 || code=$?
pid=
[ "$code" = 0 ] || fail "the program ended with $code"

[ "$(fingerprint "$outside")" = "$before_outside" ] || fail "a file outside the home changed"
[ "$(stat -c '%n %F %t:%T' /dev/zero /dev/null)" = "$before_devices" ] || fail "a device changed"
# Files missing at start were written with their defaults; those that were
# there are as they were.
changed=$(comm -23 <(echo "$before_settings" | LC_ALL=C sort) <(fingerprint "$settings" | LC_ALL=C sort))
[ -z "$changed" ] || fail "hostile settings files changed: $changed"
[ -p "$settings/Drives.txt" ] || fail "the pipe is gone"
[ -z "$(staged_files "$home")" ] || fail "staged files are left: $(staged_files "$home")"
echo "PASS: the program came up on hostile settings and a hostile list, paged and ended, and left them as they were"
