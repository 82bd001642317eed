# shellcheck shell=bash
# What the whole-program tests of hostile input share, sourced after lib.sh:
# things that stand where files are expected, and a fingerprint of a folder
# to show that nothing in it changed.

# A character device like /dev/null, of the test's own making; where the
# test may not make one, a link to /dev/null stands in (which it can't
# replace either).
make_device() {
  mknod "$1" c 1 3 2>/dev/null || ln -s /dev/null "$1"
}

# Every entry under a folder: its kind, size, link target and checksum, one
# line each, in a fixed order.
fingerprint() {
  (cd "$1" && find . -mindepth 1 -printf '%p %y %s %l\n' | LC_ALL=C sort &&
    find . -type f -exec md5sum {} + | LC_ALL=C sort)
}

# Staged files of the program's whole-file writes under a folder.
staged_files() {
  find "$1" -name '.*.lumenta-*' -print
}

# Waits up to $2 tenths of a second for the program to end; its exit code.
await_end() {
  for _ in $(seq 1 "$2"); do
    kill -0 "$1" 2>/dev/null || break
    sleep 0.1
  done
  kill -0 "$1" 2>/dev/null && return 124
  local code=0
  wait "$1" || code=$?
  return "$code"
}
