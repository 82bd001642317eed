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
# shellcheck source-path=SCRIPTDIR source=lib.sh
source "$(dirname "$0")/lib.sh"
start_demo

await '^TextFileName=.*\\sunrise\.png' || fail "the first page's file name never reached TextFileName"
grep -q '^TextTotal=6' "$settings/StateDump.txt" || fail "TextTotal is not 6"
grep -q '^Shown=FormMain' "$settings/StateDump.txt" || fail "FormMain not shown"
import -window root "$out/demo_list_view.png"

key Escape                                   # end the list view
await '^ListReady=True' || fail "the list view didn't end"
gone '^Shown=FormStop' || fail "the stop window stayed after the list view"
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
