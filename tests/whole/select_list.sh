#!/usr/bin/env bash
# A list built in the selection window of the whole program, under a virtual
# X server (run through xvfb-run) with a window manager: the window opened
# from FormMain, a folder of the demo pictures added whole, the text saved as
# a list through the real file dialog, and the show started on it.
# Screenshots of the window with its preview and of the show are left in the
# output folder.
#   select_list.sh <lumenta> <source folder> <output folder>
set -euo pipefail
exe=$1
src=$2
out=$3
mkdir -p "$out"
# shellcheck source-path=SCRIPTDIR source=lib.sh
source "$(dirname "$0")/lib.sh"

# The demo pictures in a folder of the home, where the dialogs begin; the
# folder lock off.
mkdir -p "$home/demo pics"
cp "$src"/assets/demo/{flower.bmp,mountains.jpg,night.jpg,sunrise.png,tower.png} "$home/demo pics/"
printf 'C:\\demo pics\r\n' > "$settings/AccessPass.dat"
printf 'C:\\Lumentas\r\n0\r\n' > "$settings/AccessLockDir.dat"

start_openbox

start_program
await '^Shown=FormMain' || fail "FormMain never showed"

click FormMain.CheckQuiCkWork                # the list opens without its half-minute view
click FormMain.CommandSelectFile
await '^Shown=FormSelectFile' || fail "the selection window didn't open"
click FormSelectFile.CommandAll              # every file of the folder, the last one previewed
sleep 1
import -window root "$out/select_preview.png"

click FormSelectFile.CommandSaveFile         # the real save dialog, in the pictures' folder
sleep 1.5
xdotool type --delay 20 "shows.lst"
xdotool key Return
await '^TextTotal=5' || fail "the saved list didn't open as the show"
await '^ListReady=True' || fail "the show isn't ready"
grep -q '^TextFileName=C:\\demo pics\\flower\.bmp' "$settings/StateDump.txt" ||
  fail "the show didn't start on the first picture"
printf 'C:\\demo pics\\%s\r\n' flower.bmp mountains.jpg night.jpg sunrise.png tower.png |
  { cat; printf '\r\n'; } | cmp -s - "$home/demo pics/shows.lst" ||
  fail "shows.lst isn't the list built: $(od -c "$home/demo pics/shows.lst" | head -5)"
sleep 1
import -window root "$out/select_show.png"
read -r left top width height < <(frame_geometry "$(main_window)")
on_screen "$left" "$top" "$width" "$height" ||
  fail "the show's window stands at $left $top, $width x $height: its title bar is off the screen"
echo "PASS: a folder added in the selection window, saved as a list, and shown"
