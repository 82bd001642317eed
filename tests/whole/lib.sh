# shellcheck shell=bash
# What the whole-program tests share, sourced once exe, src and out are set:
# a fresh home past its first start, the program started on the demo list,
# and the state dump that the program writes on SIGUSR1, read back.

home=$(mktemp -d)
pid=
cleanup() {
  [ -n "$pid" ] && kill "$pid" 2>/dev/null || true
  rm -rf "$home"
}
trap cleanup EXIT

settings=$home/Lumentas/ForProgramRun_KDR
mkdir -p "$settings"
# A settings record past its first start: a comment font is set. A test may
# set more of it before start_demo.
head -c 1547 /dev/zero > "$settings/DirecData.ran"
printf 'MS UI Gothic' | dd of="$settings/DirecData.ran" bs=1 seek=900 conv=notrunc status=none

# The demo list, and the program started on it under the fresh home; back
# once Main has begun, from when the program answers SIGUSR1.
start_demo() {
  HOME=$home "$src/scripts/demo-list" "$home/demo.lst"
  HOME=$home QT_QPA_PLATFORM=xcb "$exe" "$home/demo.lst" &
  pid=$!
  for _ in $(seq 1 100); do
    [ -f "$settings/StartFromWhere.dat" ] && break
    sleep 0.1
  done
}

fail() {
  echo "FAIL: $*" >&2
  cat "$settings/StateDump.txt" >&2 2>/dev/null || true
  exit 1
}
dump() { # a fresh StateDump.txt
  rm -f "$settings/StateDump.txt"
  kill -USR1 "$pid"
  for _ in $(seq 1 20); do
    [ -f "$settings/StateDump.txt" ] && return 0
    sleep 0.05
  done
  return 1
}
# Waits until the state dump has a line matching the pattern.
await() {
  for _ in $(seq 1 80); do
    dump && grep -q "$1" "$settings/StateDump.txt" && return 0
    sleep 0.1
  done
  return 1
}
value() { # the value of a line of the last dump
  sed -n "s/^$1=//p" "$settings/StateDump.txt" | tr -d '\r'
}
gone() { # waits until no line of the dump matches the pattern
  for _ in $(seq 1 80); do
    dump && ! grep -q "$1" "$settings/StateDump.txt" && return 0
    sleep 0.1
  done
  return 1
}
key() { # a key pressed in the program's main window, the largest one shown
  window=$(for w in $(xdotool search --sync --onlyvisible --class lumenta); do
    eval "$(xdotool getwindowgeometry --shell "$w")"
    echo "$((WIDTH * HEIGHT)) $w"
  done | sort -n | tail -n 1 | cut -d ' ' -f 2)
  xdotool windowfocus --sync "$window" 2>/dev/null || true
  xdotool key --clearmodifiers "$1"
}
click() { # a button named in the dump as Click.<window>.<button>
  await "^Click\.$1=" || fail "$1 is not on show"
  read -r x y < <(value "Click\.$1")
  xdotool mousemove --sync "$x" "$y" click 1
}
