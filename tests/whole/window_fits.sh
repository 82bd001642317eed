#!/usr/bin/env bash
# The main window on a real desktop (openbox on a virtual X server of 1600 by
# 1000, run through xvfb-run): the program is started on the demo list 20
# times while the window manager answers late, and after CommandNoText ends
# the list view the window, frame and title bar included, lies on the screen,
# and the smallest size it asks for, frame included, is no more than its
# design minimum of 12000 by 8500 twips (800 by 567 pixels).
#   window_fits.sh <lumenta> <source folder> <output folder>
set -euo pipefail
exe=$1
src=$2
out=$3
mkdir -p "$out"
# shellcheck source-path=SCRIPTDIR source=lib.sh
source "$(dirname "$0")/lib.sh"
start_openbox
HOME=$home "$src/scripts/demo-list" "$home/demo.lst"

starts=${STARTS:-20}
for run in $(seq 1 "$starts"); do
  fresh_settings
  wm_jitter 2
  start_program "$home/demo.lst"
  await '^Click\.FormMain\.CommandNoText=' || fail "start $run: the list view didn't show"
  click 'FormMain\.CommandNoText'
  await '^ListReady=True' || fail "start $run: CommandNoText didn't end the list view"
  wm_jitter_end
  sleep 0.5
  window=$(main_window)
  read -r left top width height < <(frame_geometry "$window")
  read -r least_width least_height < <(minimum_size "$window")
  read -r l r t b < <(frame_extents "$window")
  least_width=$((least_width + l + r))
  least_height=$((least_height + t + b))
  echo "start $run: frame $left $top $width x $height, smallest $least_width x $least_height"
  on_screen "$left" "$top" "$width" "$height" ||
    fail "start $run: the window ($left $top $width x $height) isn't inside the screen"
  { [ "$least_width" -le 800 ] && [ "$least_height" -le 567 ]; } ||
    fail "start $run: the minimum size $least_width x $least_height is above the design minimum"
  [ "$run" = 1 ] && import -window root "$out/window_fits_openbox.png"
  stop_program
done
echo "PASS: $starts starts under openbox, the main window inside the screen each time"
