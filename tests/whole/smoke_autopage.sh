#!/usr/bin/env bash
# The whole program runs the demo show in Auto Page on the whole screen, under
# a virtual X server (run through xvfb-run): a fresh home past its first start
# with an interval of 3 seconds, the demo list on the command line. Auto Page
# is opened, the window goes to the whole screen, and the walk starts; while
# it waits on a page the program must sleep (its processor time over two
# seconds stays near nothing). A screenshot with the navigator is left in the
# output folder. Then the navigator brings the normal layout back and Stop is
# pressed during a wait: Auto Page is off at once and no further page comes.
# Last, the program is ended during a wait of a new walk: it leaves with 0.
#   smoke_autopage.sh <lumenta> <source folder> <output folder>
set -euo pipefail
exe=$1
src=$2
out=$3
mkdir -p "$out"
# shellcheck source-path=SCRIPTDIR source=lib.sh
source "$(dirname "$0")/lib.sh"
# The settings record also holds AutoPageInterval 3.
printf '\003\000' | dd of="$settings/DirecData.ran" bs=1 seek=1095 conv=notrunc status=none
start_demo

cpu_ticks() { # user and system time of the process, in clock ticks
  awk '{ print $14 + $15 }' "/proc/$pid/stat"
}

await '^TextFileName=.*\\sunrise\.png' || fail "the demo list didn't open"
# Escape ends the half-minute view of the list; the stop window goes with it.
key Escape
for _ in $(seq 1 40); do
  dump && ! grep -q '^Shown=FormStop' "$settings/StateDump.txt" && break
  sleep 0.1
done
grep -q '^Shown=FormStop' "$settings/StateDump.txt" && fail "the list view didn't end"

click 'FormMain\.CommandOption'
await '^Shown=FormOption' || fail "CommandOption didn't open Auto Page"
click 'FormMain\.CommandFull'
await '^Shown=FormRightLeftNorm' || fail "the navigator didn't come with the whole screen"
await '^Caption=' # the layout has settled
click 'FormOption\.CommandStart'
await '^AutoPageOn=True' || fail "Auto Page didn't start"
grep -q '^Shown=FormOption' "$settings/StateDump.txt" && fail "Auto Page's window stayed up"

# The first page waits three seconds: the program sleeps through it.
sleep 0.5
before=$(cpu_ticks)
sleep 2
after=$(cpu_ticks)
ticks=$((after - before))
echo "processor time during two seconds of waiting: $((ticks * 10)) ms"
[ "$ticks" -le 10 ] || fail "the wait used $((ticks * 10)) ms of processor time in 2 s"

await '^TextCount=2' || fail "Auto Page didn't turn to page 2"
grep -q '^Shown=FormRightLeftNorm' "$settings/StateDump.txt" || fail "the navigator is gone"
read -r _ _ width height < <(value 'Window\.FormMain')
[ "$width" = 1280 ] && [ "$height" = 1024 ] || fail "the window is $width x $height, not the screen"
sleep 0.5
import -window root "$out/autopage_whole_screen.png"

# Back to the normal layout through the navigator; Auto Page runs on.
click 'FormRightLeftNorm\.CommandToNormalSize'
await '^Click\.FormMain\.CommandOption=' || fail "the normal layout didn't come back"
click 'FormMain\.CommandOption'
await '^Shown=FormOption' || fail "Auto Page's window didn't show"
click 'FormOption\.CommandStop'
await '^AutoPageOn=False' || fail "Stop didn't turn Auto Page off"
page=$(value TextCount)
sleep 4 # longer than any wait of the demo
dump
[ "$(value TextCount)" = "$page" ] || fail "a page came after Stop ($page, then $(value TextCount))"
grep -q '^Shown=FormOption' "$settings/StateDump.txt" || fail "Auto Page's window isn't up after Stop"

click 'FormOption\.CommandStart'
await '^AutoPageOn=True' || fail "Auto Page didn't start again"
sleep 0.5
click 'FormMain\.CommandExit'
for _ in $(seq 1 50); do
  kill -0 "$pid" 2>/dev/null || break
  sleep 0.1
done
kill -0 "$pid" 2>/dev/null && fail "the program didn't end during the wait"
code=0
wait "$pid" || code=$?
pid=
[ "$code" = 0 ] || fail "the program ended with $code"
echo "PASS: Auto Page on the whole screen with the navigator, asleep while waiting, stopped on page $page, ended in a wait"
