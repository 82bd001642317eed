#!/usr/bin/env bash
# The whole program on its demo show, under a virtual X server (run through
# xvfb-run): a fresh home that has been through the first start, the demo
# list on the command line. The list must open at its first page; then the
# keys page through it, and screenshots of a picture page and the text page
# are left in the output folder.
#   smoke_demo.sh <lumenta> <source folder> <output folder>
set -euo pipefail
exe=$1
src=$2
out=$3
mkdir -p "$out"

home=$(mktemp -d)
pid=
cleanup() {
  [ -n "$pid" ] && kill "$pid" 2>/dev/null || true
  rm -rf "$home"
}
trap cleanup EXIT

settings=$home/Lumentas/ForProgramRun_KDR
mkdir -p "$settings"
# A settings record past its first start: a comment font is set.
head -c 1547 /dev/zero > "$settings/DirecData.ran"
printf 'MS UI Gothic' | dd of="$settings/DirecData.ran" bs=1 seek=900 conv=notrunc status=none

HOME=$home "$src/scripts/demo-list" "$home/demo.lst"
HOME=$home QT_QPA_PLATFORM=xcb "$exe" "$home/demo.lst" &
pid=$!

fail() {
  echo "FAIL: $*" >&2
  cat "$settings/StateDump.txt" >&2 2>/dev/null || true
  exit 1
}

# The program answers SIGUSR1 with StateDump.txt once Main has begun.
for _ in $(seq 1 100); do
  [ -f "$settings/StartFromWhere.dat" ] && break
  sleep 0.1
done
# Waits until the state dump has a line matching the pattern.
await() {
  for _ in $(seq 1 40); do
    rm -f "$settings/StateDump.txt"
    kill -USR1 "$pid"
    sleep 0.25
    grep -q "$1" "$settings/StateDump.txt" 2>/dev/null && return 0
  done
  return 1
}
key() {
  window=$(xdotool search --sync --onlyvisible --class lumenta | head -n 1)
  xdotool windowfocus --sync "$window" 2>/dev/null || true
  xdotool key --clearmodifiers "$1"
}

await '^TextFileName=.*\\sunrise\.png' || fail "the first page's file name never reached TextFileName"
grep -q '^TextTotal=6' "$settings/StateDump.txt" || fail "TextTotal is not 6"
grep -q '^Shown=FormMain' "$settings/StateDump.txt" || fail "FormMain not shown"
import -window root "$out/demo_list_view.png"

key Escape                                   # end the list view
await '^ListReady=True' || fail "the list view didn't end"
key Next                                     # the picture with its chime
await '^TextFileName=.*\\mountains\.jpg' || fail "Page Down didn't turn to page 2"
sleep 0.5
import -window root "$out/demo_picture_page.png"
key Next                                     # the text page
await '^TextFileName=.*\\notes\.txt' || fail "Page Down didn't turn to page 3"
sleep 0.5
import -window root "$out/demo_text_page.png"
key Prior
await '^TextCount=2' || fail "Page Up didn't turn back"
echo "PASS: the demo list opened at its first page and paged by keys"
