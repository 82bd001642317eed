#!/usr/bin/env bash
# The list editor in the whole program, under a virtual X server (run through
# xvfb-run) with a window manager: the program started bare, the demo list
# opened in the selection window through the real open dialog and turned
# into editor text; a click on a record selects its row; the first row gets
# a delay of 1 second typed into FormEditText; the list is saved through the
# real save dialog and the show opens it; Auto Page, with an interval of 9
# seconds, then turns to page 2 after the new second. Screenshots of the
# editor with a row selected and of the saved show are left in the output
# folder.
#   editor_list.sh <lumenta> <source folder> <output folder>
set -euo pipefail
exe=$1
src=$2
out=$3
mkdir -p "$out"
# shellcheck source-path=SCRIPTDIR source=lib.sh
source "$(dirname "$0")/lib.sh"
# The settings record also holds AutoPageInterval 9: a page without a delay
# of its own waits that long.
printf '\011\000' | dd of="$settings/DirecData.ran" bs=1 seek=1095 conv=notrunc status=none

start_openbox

# The demo list written for this home; the program started without it.
HOME=$home "$src/scripts/demo-list" "$home/demo.lst"
start_program
await '^Shown=FormMain' || fail "FormMain never showed"

click FormMain.CheckQuiCkWork # a list opens without its half-minute view
click FormMain.CommandSelectFile
await '^Shown=FormSelectFile' || fail "the selection window didn't open"
click FormSelectFile.CommandOpenf # the real open dialog
sleep 1.5
xdotool type --delay 20 "$home/demo.lst"
xdotool key Return
await '^Line\.FormSelectFile\.Text1\.0=' || fail "the list text didn't come"

click FormSelectFile.CommandEditCommand1
await '^Shown=FormEditText' || fail "the editor didn't open"
await '^EditorOn=True' || fail "the text isn't editor text"
# Row 1 holds a comment of three lines: the fourth line of the box is row 2.
await '^Line\.FormSelectFile\.Text1\.3=' || fail "the second record isn't on show"
read -r x y < <(value 'Line\.FormSelectFile\.Text1\.3')
xdotool mousemove --sync "$x" "$y" click 1
await '^EditRow=1[[:space:]]*$' || fail "a click on the second record didn't select row 2"
sleep 0.5
import -window root "$out/editor_row_selected.png"

# Back to the first row, by its comment's second line, and its delay typed.
read -r x y < <(value 'Line\.FormSelectFile\.Text1\.1')
xdotool mousemove --sync "$x" "$y" click 1
await '^EditRow=0[[:space:]]*$' || fail "a click in the comment didn't select row 1"
click FormEditText.TextWaitTime
xdotool type --delay 20 "1"
click FormEditText.CommandAdd
click FormEditText.CommandUpdate
sleep 0.5

click FormSelectFile.CommandSaveFile # the real save dialog
sleep 1.5
xdotool type --delay 20 "$home/edited.lst"
xdotool key Return
for _ in $(seq 1 80); do # written after the text is standard again and a pause
  [ -f "$home/edited.lst" ] && break
  sleep 0.1
done
[ -f "$home/edited.lst" ] || fail "the list wasn't saved"
await '^EditorOn=False' || fail "saving didn't turn the editor text back"
await '^PageDelay=1[[:space:]]*$' || fail "the show didn't open the saved list"
await '^TextFileName=.*\\sunrise\.png' || fail "the show isn't on the first page"
await '^ListReady=True' || fail "the show isn't ready"
line=$(head -n 1 "$home/edited.lst" | iconv -f CP932 -t UTF-8 | tr -d '\r') # written in CP932
case "$line" in
  *'sunrise.png @DELAY=1 ENDDELAY @COMMENT=<<<<<ルメンタへようこそ <<<<<→ で次のページへ '*) ;;
  *) fail "the first row was saved as: $line" ;;
esac
grep -aq 'mountains.jpg @WITH=.*chime.wav ENDWITH @DELAY=3 ENDDELAY' "$home/edited.lst" ||
  fail "the second row changed: $(sed -n 2p "$home/edited.lst")"
n=$(grep -ac . "$home/edited.lst")
[ "$n" = 7 ] || fail "edited.lst has $n lines, not six rows and the closing blank line"

# Auto Page from page 1: the new delay of 1 s, not the interval of 9 s.
click 'FormMain\.CommandOption'
await '^Shown=FormOption' || fail "CommandOption didn't open Auto Page"
click 'FormOption\.CommandStart'
started=$(date +%s%N)
await '^TextCount=2' || fail "Auto Page didn't turn to page 2"
took=$((($(date +%s%N) - started) / 1000000))
echo "page 1 lasted $took ms"
[ "$took" -lt 5000 ] || fail "page 1 lasted $took ms: the delay of 1 s wasn't played"
sleep 0.5
import -window root "$out/editor_show.png"
echo "PASS: the demo list edited in the editor, saved, and shown with the new delay"
