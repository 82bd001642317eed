#!/usr/bin/env bash
# Picture work in the whole program, under a virtual X server (run through
# xvfb-run) with a window manager when one is installed: on the demo show's
# first picture the drawing window draws a closed curve through six clicked
# points, "仮OK" shows it with its marks (a screenshot of the drawing window
# beside the drawing is left in the output folder), "OK" stores it, a border
# fill paints its inside, and the picture is saved as PNG through the save
# dialog. The saved file must be read by ImageMagick at the picture's size,
# with the curve's colour on the curve and the fill's inside it.
#   picture_work.sh <lumenta> <source folder> <output folder>
set -euo pipefail
exe=$1
src=$2
out=$3
mkdir -p "$out"
# shellcheck source-path=SCRIPTDIR source=lib.sh
source "$(dirname "$0")/lib.sh"
start_openbox
await_file() { # waits up to five seconds for a file
  for _ in $(seq 1 50); do
    [ -f "$1" ] && return 0
    sleep 0.1
  done
  return 1
}
# A button of a window of picture work, with that window raised first: the
# main window may have come over it when the picture was clicked.
press() {
  xdotool search --onlyvisible --name "^$2\$" windowraise >/dev/null 2>&1 || true
  sleep 0.2
  click "$1"
}
start_demo

await '^TextFileName=.*\\sunrise\.png' || fail "the demo list didn't open"
key Escape
gone '^Shown=FormStop' || fail "the list view didn't end"

click 'FormMain\.CommandModPic'
await '^Shown=FormModPic' || fail "CommandModPic didn't open the drawing window"
await '^Shown=FormSaveImage' || fail "CommandModPic didn't open the picture store"
await '^Place\.FormMain\.Picture2=' || fail "the picture isn't on show"
read -r px py pw ph < <(value 'Place\.FormMain\.Picture2')
[ "$pw" = 640 ] && [ "$ph" = 420 ] || fail "the picture is not at its own size: $pw x $ph"

# A closed curve through six points round the picture's middle.
press 'FormModPic\.OptionSplineClose' '作図'
press 'FormModPic\.CommandStartDrawLine' '作図'
sleep 0.5 # yellow, then green
for point in "320 110" "450 150" "470 270" "330 330" "190 280" "180 160"; do
  read -r x y <<<"$point"
  xdotool mousemove --sync $((px + x)) $((py + y)) click 1
done
press 'FormModPic\.CommandDoSpline' '作図'
sleep 0.5
import -window root "$out/picture_work_trial_curve.png"
press 'FormModPic\.CommandStopDrawLine' '作図'
await_file "$settings/LastPic0.png" || fail "OK stored no temporary picture"

# The inside of the curve, filled up to the curve's colour.
press 'FormModPic\.CommandStartPaintColor' '作図'
xdotool mousemove --sync $((px + 320)) $((py + 220)) click 1
sleep 0.3
press 'FormModPic\.CommandStopDrawPaint' '作図'
await_file "$settings/LastPic1.png" || fail "the painting's OK stored no temporary picture"
import -window root "$out/picture_work_filled.png"

# Saved as PNG: the dialog proposes the page's name; a name in the home is typed.
press 'FormSaveImage\.CommandSavePicPNG' '画像の表示/読込/保存'
dialog=$(xdotool search --sync --onlyvisible --name 'PNG保存' | head -n 1)
xdotool windowfocus --sync "$dialog" 2>/dev/null || true
sleep 0.3
xdotool key --clearmodifiers ctrl+a
xdotool type --delay 20 "$home/drawn.png"
xdotool key Return
await_file "$home/drawn.png" || fail "the PNG save wrote no file"
sleep 0.5
[ "$(identify -format '%m %w %h' "$home/drawn.png")" = "PNG 640 420" ] ||
  fail "the saved file isn't a PNG of 640 by 420"
pixel() { convert "$home/drawn.png" -format "%[fx:int(255*p{$1}.r)] %[fx:int(255*p{$1}.g)] %[fx:int(255*p{$1}.b)]" info:; }
[ "$(pixel 320,220)" = "255 255 0" ] || fail "the curve's inside isn't filled: $(pixel 320,220)"
[ "$(pixel 20,20)" != "255 255 0" ] || fail "the fill leaked out of the curve"
red=$(convert "$home/drawn.png" -fill black +opaque red -fill white -opaque red -format '%[fx:int(mean*w*h)]' info:)
[ "$red" -gt 300 ] || fail "the curve isn't in the saved picture ($red red pixels)"
echo "PASS: a closed curve and its fill drawn on the demo picture, stored and saved as PNG"
