#!/usr/bin/env bash
# Bulk work in the whole program, under a virtual X server (run through
# xvfb-run) with a window manager when one is installed: on the demo show,
# ﾌｧｲﾙｵﾌﾟｼｮﾝ makes a new folder and copies the list's files into it under
# numbered names, confirming each file with its page on show: OK, skip, and
# OK to the rest. The skipped mountains.jpg gives no copy and uses no number:
# the next file takes it. The copies must be on disk, byte for byte. Screenshots of the window
# during the run and of FormEdit2 (opened from the selection window) are
# left in the output folder.
#   bulk_copy.sh <lumenta> <source folder> <output folder>
set -euo pipefail
exe=$1
src=$2
out=$3
mkdir -p "$out"
# shellcheck source-path=SCRIPTDIR source=lib.sh
source "$(dirname "$0")/lib.sh"
start_openbox
answer_yes() { # the question box of the program has the focus
  sleep 0.5
  xdotool key --clearmodifiers Return
}
type_into() { # a text box named in the dump, emptied first
  click "$1"
  xdotool key --clearmodifiers ctrl+a
  xdotool type --delay 20 "$2"
}
start_demo

await '^TextFileName=.*\\sunrise\.png' || fail "the demo list didn't open"
key Escape
gone '^Shown=FormStop' || fail "the list view didn't end"

click 'FormMain\.CommandFileOption'
await '^Shown=FormFileOption' || fail "CommandFileOption didn't open FormFileOption"

# A new folder for the copies.
type_into 'FormFileOption\.TextDirectry' 'C:\Copies'
click 'FormFileOption\.CommandMakeDirectry'
answer_yes
for _ in $(seq 1 50); do
  [ -d "$home/Copies" ] && break
  sleep 0.1
done
[ -d "$home/Copies" ] || fail "CommandMakeDirectry made no folder"

# Numbered copies from 1, the stem as the combo has it at first.
click 'FormFileOption\.OptionAutoRename'
type_into 'FormFileOption\.TextNom' '1'
click 'FormFileOption\.CommandDo'
answer_yes

answers=(OK Skip OK OK OK OK) # rows 1 to 6 of the demo list
for row in 1 2 3 4 5 6; do
  await "^FileOptionRow=$row\\b" || fail "row $row never waited for its answer"
  await "^TextCount=$row\\b" || fail "row $row waits without its page on show"
  if [ "$row" = 1 ]; then
    sleep 0.5
    import -window root "$out/bulk_copy_confirm.png"
  fi
  click "FormFileOption\\.Command${answers[row - 1]}"
done
await '^FileOptionRow=0\b' || fail "the run didn't end"

stem='Word for Picture name'
check() { # a copy and its source
  cmp -s "$home/Copies/$stem$1" "$src/assets/demo/$2" || fail "$1 isn't a copy of $2"
}
check 001.png sunrise.png
check 002.txt notes.txt
check 003.bmp flower.bmp
check 004.png tower.png
check 005.jpg night.jpg
count=$(find "$home/Copies" -type f | wc -l)
[ "$count" = 5 ] || fail "$count files in the new folder: $(ls "$home/Copies")"

# The bindings window, from the selection window's CommandEditor.
click 'FormMain\.CommandSelectFile'
await '^Shown=FormSelectFile' || fail "the selection window didn't open"
click 'FormSelectFile\.CommandEditor'
await '^Shown=FormEdit2' || fail "CommandEditor didn't open FormEdit2"
sleep 0.5
import -window root "$out/bulk_copy_edit2.png"
echo "PASS: the demo list copied under numbered names, file by file, and FormEdit2 shown"
