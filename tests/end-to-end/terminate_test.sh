#!/usr/bin/env bash
# The system ends the program in the middle of a run, as at a log-out or a shut-down: everything that was keyed is in the
# closed data file and in the comma file.
#   terminate_test.sh BUILD-FOLDER [WINDOW-MANAGER]
set -euo pipefail
. "$(dirname "$0")/operator.sh"

start_programs
program=$(xdotool getwindowpid "$window")
at 2.000
open_file JOB
order PREPARE 2.000
order START
until_running
key space
settled
at 2.1 2.125
order ARM
kill "$program"
heard "CTRL STOP"
heard "FILE CLOSE"
until_holds test ! -d "/proc/$program"
is "the boundary that was passed" "$(ask JOB "SELECT count(*) FROM Stations WHERE Station=2.1")" 1
is "the key" "$(ask JOB "SELECT count(*) FROM Registrations WHERE FromID=ToID")" 1
is "the mode of a closed file" "$(ask JOB "PRAGMA journal_mode")" delete
grep -q '2[.]1' "$TREKOR_DRIVES/C/Roads/JOB.TKR" || fail "no comma file"
echo "passed"
