# shellcheck shell=bash
# What the whole-program tests share, sourced once exe, src and out are set:
# a fresh home past its first start, the program started on the demo list,
# the state dump that the program writes on SIGUSR1, read back, and a real
# window manager (openbox) for the tests that look at frames and places.
# Every test runs inside one xvfb-run session, so one X server serves all the
# starts of a test.

home=$(mktemp -d)
pid=
wm=
jitter=
cleanup() {
  [ -n "$jitter" ] && kill "$jitter" 2>/dev/null
  [ -n "$wm" ] && kill -CONT "$wm" 2>/dev/null
  [ -n "$pid" ] && kill "$pid" 2>/dev/null
  [ -n "$wm" ] && kill "$wm" 2>/dev/null
  rm -rf "$home"
}
trap cleanup EXIT

settings=$home/Lumentas/ForProgramRun_KDR

# fresh_settings: an empty settings folder with a record past its first start
# (a comment font is set). A test may set more of it before start_demo.
fresh_settings() {
  rm -rf "$home/Lumentas"
  mkdir -p "$settings"
  head -c 1547 /dev/zero > "$settings/DirecData.ran"
  printf 'MS UI Gothic' | dd of="$settings/DirecData.ran" bs=1 seek=900 conv=notrunc status=none
}
fresh_settings

# record_field <offset> <text>: bytes written into the settings record; the
# text may hold escapes such as \003.
record_field() {
  printf '%b' "$2" | dd of="$settings/DirecData.ran" bs=1 seek="$1" conv=notrunc status=none
}

# start_program [argument...]: the program started under the test's home; back
# once Main has begun, from when the program answers SIGUSR1.
start_program() {
  rm -f "$settings/StartFromWhere.dat"
  HOME=$home QT_QPA_PLATFORM=xcb "$exe" "$@" &
  pid=$!
  for _ in $(seq 1 100); do
    [ -f "$settings/StartFromWhere.dat" ] && break
    sleep 0.1
  done
}

# start_demo: the demo list written into the home and the program started on it.
start_demo() {
  HOME=$home "$src/scripts/demo-list" "$home/demo.lst"
  start_program "$home/demo.lst"
}

# stop_program: the running program ended by a signal, and waited for.
stop_program() {
  [ -n "$pid" ] || return 0
  kill "$pid" 2>/dev/null || true
  wait "$pid" 2>/dev/null || true
  pid=
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
# window_of <Form name>: the X window of the program's window of that name
# (its WM_WINDOW_ROLE), shown; empty when it isn't on show.
window_of() {
  local w role
  for w in $(xdotool search --onlyvisible --class lumenta 2>/dev/null); do
    role=$(xprop -id "$w" WM_WINDOW_ROLE 2>/dev/null | sed -n 's/.*= "\(.*\)"/\1/p')
    [ "$role" = "$1" ] && { echo "$w"; return 0; }
  done
  return 0
}

# await_window <Form name>: waits until the window is on show and prints it.
await_window() {
  local w
  for _ in $(seq 1 100); do
    w=$(window_of "$1")
    [ -n "$w" ] && { echo "$w"; return 0; }
    sleep 0.1
  done
  return 1
}

# main_window: the X window of the program's main window.
main_window() {
  await_window FormMain
}
key() { # a key pressed in the program's main window
  window=$(main_window)
  xdotool windowfocus --sync "$window" 2>/dev/null || true
  xdotool key --clearmodifiers "$1"
}
# settled <Form name>: waits until the window manager has framed the window
# (when one runs) and the window keeps its place from one dump to the next; a
# click read off a window that is still being placed lands beside its button.
settled() {
  local w last= now
  if [ -n "$wm" ] && w=$(window_of "$1") && [ -n "$w" ]; then
    for _ in $(seq 1 30); do
      xprop -id "$w" _NET_FRAME_EXTENTS 2>/dev/null | grep -q '=' && break
      sleep 0.1
    done
  fi
  for _ in $(seq 1 20); do
    dump || continue
    now=$(value "Window\.$1")
    [ -n "$now" ] && [ "$now" = "$last" ] && return 0
    last=$now
    sleep 0.15
  done
}
click() { # a button named in the dump as Click.<window>.<button>
  local form=${1%%.*}
  settled "${form%\\}"
  await "^Click\.$1=" || fail "$1 is not on show"
  read -r x y < <(value "Click\.$1")
  # A move to where the pointer already is never reports back: --sync only
  # when it goes somewhere.
  local X Y
  eval "$(xdotool getmouselocation --shell | grep -E '^[XY]=')"
  if [ "$X $Y" = "$x $y" ]; then
    xdotool click 1
  else
    xdotool mousemove --sync "$x" "$y" click 1
  fi
}

# ---- A real window manager -------------------------------------------------

# start_openbox: openbox on the test's X server, back once it manages windows
# (it has set its check window on the root). Under bare Xvfb a window has no
# frame, and a title bar placed above the screen goes unnoticed.
start_openbox() {
  openbox --sm-disable >"$home/openbox.log" 2>&1 &
  wm=$!
  local check
  for _ in $(seq 1 200); do
    check=$(xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null || true)
    [[ "$check" == *"window id"* ]] && return 0
    sleep 0.05
  done
  cat "$home/openbox.log" >&2
  fail "openbox didn't start"
}

# wm_jitter <seconds>: in the background, the window manager paused and let go
# again in slices of a few milliseconds, as a busy desktop answers late. A
# window's frame is then often taken half made, which is when a program that
# trusts the frame it is told about goes wrong.
wm_jitter() {
  local slices=$(($1 * 100))
  (
    for _ in $(seq 1 "$slices"); do
      kill -STOP "$wm" 2>/dev/null
      sleep "0.00$((RANDOM % 9 + 1))"
      kill -CONT "$wm" 2>/dev/null
      sleep "0.00$((RANDOM % 9 + 1))"
    done
    kill -CONT "$wm" 2>/dev/null
  ) &
  jitter=$!
}
# wm_jitter_end: waits until the window manager runs freely again.
wm_jitter_end() {
  [ -n "$jitter" ] && wait "$jitter" 2>/dev/null
  jitter=
}

# screen_size: the X screen's width and height.
screen_size() {
  xdotool getdisplaygeometry
}

# frame_extents <window>: the thickness of the window manager's frame,
# "left right top bottom" (all 0 without a window manager).
frame_extents() {
  local extents
  extents=$(xprop -id "$1" _NET_FRAME_EXTENTS 2>/dev/null | sed -n 's/.*= //p' | tr -d ',')
  echo "${extents:-0 0 0 0}"
}

# frame_geometry <window>: "left top width height" of the window with its
# frame, as the window manager keeps it (the client alone without one). The
# client's place comes from xwininfo: xdotool counts the frame in twice.
frame_geometry() {
  local info x y w h l r t b
  info=$(xwininfo -id "$1")
  x=$(sed -n 's/.*Absolute upper-left X: *//p' <<<"$info")
  y=$(sed -n 's/.*Absolute upper-left Y: *//p' <<<"$info")
  w=$(sed -n 's/^ *Width: *//p' <<<"$info")
  h=$(sed -n 's/^ *Height: *//p' <<<"$info")
  read -r l r t b < <(frame_extents "$1")
  echo "$((x - l)) $((y - t)) $((w + l + r)) $((h + t + b))"
}

# minimum_size <window>: "width height" of the smallest size the window asks
# the window manager for, or "0 0".
minimum_size() {
  xprop -id "$1" WM_NORMAL_HINTS |
    sed -n 's/.*minimum size: \([0-9]*\) by \([0-9]*\).*/\1 \2/p' | grep . || echo "0 0"
}

# on_screen <left> <top> <width> <height>: whether the rectangle lies wholly
# on the screen (so a frame's title bar can be reached).
on_screen() {
  local sw sh
  read -r sw sh < <(screen_size)
  [ "$1" -ge 0 ] && [ "$2" -ge 0 ] && [ $(($1 + $3)) -le "$sw" ] && [ $(($2 + $4)) -le "$sh" ]
}
