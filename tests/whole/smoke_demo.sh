#!/usr/bin/env bash
# The whole program on its demo show, under a virtual X server (run through
# xvfb-run): a fresh home that has been through the first start, the demo
# list on the command line; the list must open at its first page. A
# screenshot is left in the output folder.
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

# The program answers SIGUSR1 with StateDump.txt once Main has begun.
for _ in $(seq 1 100); do
  [ -f "$settings/StartFromWhere.dat" ] && break
  sleep 0.1
done
first=
for _ in $(seq 1 60); do
  kill -USR1 "$pid"
  sleep 0.5
  if grep -q '^TextFileName=.*\\sunrise\.png' "$settings/StateDump.txt" 2>/dev/null; then
    first=yes
    break
  fi
done
import -window root "$out/demo_first_page.png"
cat "$settings/StateDump.txt" 2>/dev/null || true
if [ -z "$first" ]; then
  echo "FAIL: the first page's file name never reached TextFileName" >&2
  exit 1
fi
grep -q '^TextTotal=6' "$settings/StateDump.txt" || { echo "FAIL: TextTotal is not 6" >&2; exit 1; }
grep -q '^Shown=FormMain' "$settings/StateDump.txt" || { echo "FAIL: FormMain not shown" >&2; exit 1; }
echo "PASS: the demo list opened at its first page"
