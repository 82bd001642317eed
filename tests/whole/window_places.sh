#!/usr/bin/env bash
# Where the windows stand on a real desktop (openbox on a virtual X server of
# 1600 by 1000, run through xvfb-run). After each way of starting (the demo
# list on the command line, no argument, the last list opened again at start,
# the first start through the program-paths window) the main window's title
# bar is on the screen. The comment window of the demo's comment page opens
# inside the main window and stays where it is dragged until a page without
# a comment unloads it; the arrow keys page the show; whole-screen mode
# keeps the navigator on the screen and Escape brings the normal window back.
# Screenshots of the comment page and of whole-screen mode are left in the
# output folder.
#   window_places.sh <lumenta> <source folder> <output folder>
set -euo pipefail
exe=$1
src=$2
out=$3
mkdir -p "$out"
# shellcheck source-path=SCRIPTDIR source=lib.sh
source "$(dirname "$0")/lib.sh"
start_openbox

# title_bar_shown <Form name> <when>: the window's frame comes to lie on the
# screen within three seconds of its showing (the window manager frames it
# first, then the program places it by its frame).
title_bar_shown() {
  local window left top width height
  window=$(await_window "$1") || fail "$2: $1 isn't on show"
  for _ in $(seq 1 30); do
    read -r left top width height < <(frame_geometry "$window")
    on_screen "$left" "$top" "$width" "$height" && break
    sleep 0.1
  done
  echo "$2: $1 at $left $top, $width x $height"
  on_screen "$left" "$top" "$width" "$height" || fail "$2: $1 isn't wholly on the screen"
}

# -- The demo list on the command line, and its comment page.
start_demo
await '^Click\.FormMain\.CommandNoText=' || fail "the list view didn't show"
click 'FormMain\.CommandNoText'
await '^Shown=FormComment' || fail "the comment page has no comment window"
sleep 0.5
title_bar_shown FormMain "a list on the command line"
read -r ml mt mw mh < <(frame_geometry "$(main_window)")
comment=$(await_window FormComment) || fail "the comment window isn't on show"
read -r cl ct cw ch < <(frame_geometry "$comment")
echo "comment window at $cl $ct, $cw x $ch"
[ "$cl" -ge "$ml" ] && [ "$ct" -ge "$mt" ] &&
  [ $((cl + cw)) -le $((ml + mw)) ] && [ $((ct + ch)) -le $((mt + mh)) ] ||
  fail "the comment window ($cl $ct) isn't inside the main window ($ml $mt $mw x $mh)"
import -window root "$out/window_places_comment_page.png"

# Dragged by its label, it stays where it was put on the next comment page.
xdotool mousemove --sync $((cl + cw / 2)) $((ct + ch / 2)) mousedown 1
xdotool mousemove --sync $((cl + cw / 2 - 60)) $((ct + ch / 2 - 80))
xdotool mousemove --sync $((cl + cw / 2 - 120)) $((ct + ch / 2 - 160)) mouseup 1
sleep 0.3
read -r dl dt _ _ < <(frame_geometry "$comment")
[ "$dl" -lt "$cl" ] && [ "$dt" -lt "$ct" ] || fail "the drag didn't move the comment window"
click 'FormMain\.LabelDo' # the page again, with its comment
sleep 0.5
read -r kl kt _ _ < <(frame_geometry "$(await_window FormComment)")
[ "$kl $kt" = "$dl $dt" ] || fail "the comment window went from $dl $dt to $kl $kt"
# A page without a comment unloads it; back on the comment page it opens in
# its first place again.
key Right
gone '^Shown=FormComment' || fail "the comment window stayed on a page without a comment"
key Left
await '^Shown=FormComment' || fail "the comment window didn't come back on page 1"
sleep 0.5
read -r kl kt _ _ < <(frame_geometry "$(await_window FormComment)")
[ "$kl $kt" = "$cl $ct" ] || fail "the comment window came back at $kl $kt, not $cl $ct"

# -- Whole-screen mode: the window and the navigator on the screen; Escape back.
click 'FormMain\.CommandFull'
await '^Shown=FormRightLeftNorm' || fail "the navigator didn't come with the whole screen"
sleep 0.5
title_bar_shown FormMain "whole screen"
title_bar_shown FormRightLeftNorm "whole screen"
import -window root "$out/window_places_whole_screen.png"
key Escape
await '^Click\.FormMain\.CommandFull=' || fail "Escape didn't bring the normal window back"
gone '^Shown=FormRightLeftNorm' || fail "the navigator stayed in the normal window"
sleep 0.3
title_bar_shown FormMain "back from whole screen"
stop_program

# -- No argument.
fresh_settings
start_program
title_bar_shown FormMain "no argument"
stop_program

# -- The last list opened again at start (ListAutoStart True).
fresh_settings
record_field 1445 'C:\\demo.lst'
record_field 1545 '\377\377'
start_program
await '^TextTotal=6' || fail "the last list wasn't opened at start"
title_bar_shown FormMain "the last list at start"
stop_program

# -- The first start: the program-paths window, then the main window.
fresh_settings
head -c 1547 /dev/zero >"$settings/DirecData.ran"
start_program
title_bar_shown FormSetAccessDirectry "the first start"
click 'FormSetAccessDirectry\.CommandExit'
sleep 0.5
xdotool key Return # the note on QuickTime and Lattice Viewer
title_bar_shown FormMain "after the first start"
stop_program
echo "PASS: title bars on the screen after every way of starting; the comment window inside the main window"
