#!/usr/bin/env bash
# Two real processes: the second start ends and says so, and only a running program keeps it out. A program that is told
# to end does not go on running for its sound.
#   second_start_test.sh BUILD-FOLDER
set -euo pipefail
. "$(dirname "$0")/programs.sh"
export QT_QPA_PLATFORM=offscreen

fresh_drives
mkfifo "$work/told"
exec 4<>"$work/told" # held open, so that the program never writes to nobody

# Starts the program, whose process is then $first, and waits until it has shown its window and, with no key pressed,
# opened the sound device.
start() {
  "$build/bin/Trekor" 7707-104 /US 2>&4 &
  first=$!
  started+=($first)
  timeout 30 grep -q -m 1 'sound device open' <&4 || fail "$1"
}
ends() { kill -9 "$first"; wait "$first" || true; }
second() {
  TREKOR_DRIVES=${1:-$TREKOR_DRIVES} timeout 20 "$build/bin/Trekor" 7707-104 /US >"$work/said.txt" 2>"$work/errors.txt" ||
    fail "the second start ended with $?"
  [ ! -s "$work/said.txt" ] && grep -q 'already runs' "$work/errors.txt" || fail "the second start told nothing"
}

for content in '' $'1\nTrekor\nelsewhere\n'; do # empty, and of a process that is no Trekor
  printf '%s' "$content" >"$TREKOR_DRIVES/.trekor.lock"
  start "a file was left behind and kept the program out"
  ends
done
start "the program was killed and keeps itself out"
rm -f "$TREKOR_DRIVES"/.trekor.lock
second
ln -s drives "$work/other-name"
second "$work/other-name"
kill -0 "$first" || fail "the first one has gone"
ends

mkfifo "$work/silent" # a device that hangs while it opens: nobody listens
echo "at 1 end" >"$work/end.drive"
SDL_AUDIODRIVER=disk SDL_DISKAUDIOFILE=$work/silent limit=60 control --drive "$work/end.drive" </dev/null ||
  fail "a sound device that hangs kept the program"
echo "passed"
