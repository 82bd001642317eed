#!/usr/bin/env bash
# The whole program on a full disk, under a virtual X server (run through
# xvfb-run). A first session on the demo list writes every settings file and
# ends. A second session, on another list, runs with its files limited to
# 1 KB (RLIMIT_FSIZE, as a full disk cuts a write): every write beyond that
# fails, among them the settings record at the end. The program must end
# normally, and every settings file must be byte for byte as the first
# session left it, with no staged file beside it.
#   full_disk.sh <lumenta> <source folder> <output folder>
set -euo pipefail
exe=$1
src=$2
out=$3
mkdir -p "$out"
# shellcheck source-path=SCRIPTDIR source=lib.sh
source "$(dirname "$0")/lib.sh"
# shellcheck source-path=SCRIPTDIR source=hostile_lib.sh
source "$(dirname "$0")/hostile_lib.sh"

end_session() {
  click 'FormMain\.CommandExit'
  local code=0
  await_end "$pid" 100 || code=$?
  pid=
  [ "$code" = 0 ] || fail "the program ended with $code"
}

start_demo
await '^TextTotal=6' || fail "the demo list didn't open"
end_session

settings_files() { # the settings, not the working copies of a session
  fingerprint "$settings" |
    grep -v -e StateDump.txt -e StartFromWhere.dat -e TempList -e '\.lumenta-'
}
before=$(settings_files)
record=$(md5sum <"$settings/DirecData.ran")

# The same show under another name, so that the record of this session
# differs from the last one.
cp "$home/demo.lst" "$home/other.lst"
rm "$settings/StartFromWhere.dat" # written anew once Main has begun
(
  ulimit -f 1
  HOME=$home QT_QPA_PLATFORM=xcb exec "$exe" "$home/other.lst"
) &
pid=$!
for _ in $(seq 1 100); do
  [ -f "$settings/StartFromWhere.dat" ] && break
  sleep 0.1
done
await '^TextTotal=6' || fail "the list didn't open on the full disk"
end_session

[ "$(md5sum <"$settings/DirecData.ran")" = "$record" ] || fail "the settings record changed"
diff <(echo "$before") <(settings_files) >&2 || fail "a settings file changed"
[ -z "$(staged_files "$home")" ] || fail "staged files are left: $(staged_files "$home")"
echo "PASS: a session on a full disk ended normally and left every settings file as it was"
