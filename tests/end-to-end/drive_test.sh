#!/usr/bin/env bash
# A short drive of the programs as they are installed, with real key presses. Looks at what the office gets.
#   drive_test.sh BUILD-FOLDER
set -euo pipefail
. "$(dirname "$0")/programs.sh"

# As a person gets them: from a folder that has nothing of the build beside it.
cmake --install "$build" --prefix "$work/usr" >/dev/null
build=$work/usr
fresh_drives
fresh_display
# Where the session has no message bus, none may be started: the fork for it can hang, and the sound with it.
mkdir "$work/path"
printf '#!/bin/sh\ntouch "%s/bus-started"\nexit 1\n' "$work" >"$work/path/dbus-launch"
chmod +x "$work/path/dbus-launch"
(unset DBUS_SESSION_BUS_ADDRESS; PATH=$work/path:$PATH
 control --drive "$here/short.drive" </dev/null) || fail "the drive ended with $?"

for place in Messages.vdb Graphics/Pothole.png Audio/Tones/D1.wav; do
  [ -s "$TREKOR_DRIVES/C/Trekor/$place" ] || fail "$place was not found beside the program"
done
[ ! -e "$work/bus-started" ] || fail "a message bus was started"
is "the sound device is opened behind the first picture" \
  "$(grep -xE 'first picture|sound device open' "$work/errors.txt" | tr '\n' ' ')" "first picture sound device open "

file=$TREKOR_DRIVES/C/Roads/SHORT01.mdb
comma=$TREKOR_DRIVES/C/Roads/SHORT01.TKR
short() { ask SHORT01 "$1"; }

is "the file checks clean" "$(short 'PRAGMA integrity_check')" ok
is "the file is plain" "$(short 'PRAGMA journal_mode')$(ls "$file"-* 2>/dev/null)" delete
is "sessions" "$(short "SELECT count(*) || Operator || TestSetup FROM Sessions")" "1A. LindPavement distress"
is "potholes as points" "$(short 'SELECT count(*) FROM Registrations WHERE ObsCode=121 AND FromID=ToID')" 3
is "the note" "$(short 'SELECT RegData FROM Registrations WHERE ObsCode=291 AND FromID=ToID')" oak
is "cracks counted in the first step" \
  "$(short 'SELECT RegData FROM Registrations WHERE ObsCode=101 AND FromID<>ToID ORDER BY RegID LIMIT 1')" 2
is "rut class by two keys" "$(short 'SELECT RegData FROM Registrations WHERE ObsCode=141 ORDER BY RegID LIMIT 1')" 7
is "every registration lies between stored stations" \
  "$(short 'SELECT count(*) FROM Registrations WHERE FromID NOT IN (SELECT StationID FROM Stations)
            OR ToID NOT IN (SELECT StationID FROM Stations) OR FromID > ToID')" 0
is "the first step ends at its boundary" "$(short 'SELECT Station FROM Stations WHERE StationType=0 LIMIT 1 OFFSET 1')" 2.1
is "points in the comma file" "$(grep -c '^5311,' "$comma")" 4
is "the note in the comma file" "$(grep -c ',291,0,"oak"' "$comma")" 1
is "the last record" "$(tail -n 1 "$comma" | tr -d '\r')" "5319,     0.0"
is "lines without a carriage return" "$(grep -vc $'\r$' "$comma" || true)" 0
# The office makes the same comma file again, and hears of the file that is none though it isn't the last.
cp "$comma" "$work/driven"
code=0
"$build/bin/trekor-export" --operator "A. Lind" --setup "Pavement distress" "$work/none.mdb" "$file" \
  >"$work/exported" 2>/dev/null || code=$?
is "the highest exit code" $code 1
is "what was written" "$(cat "$work/exported")" "$comma"
cmp "$comma" "$work/driven" || fail "the tool writes another comma file"
grep -q -- '<- CTRL EXIT' "$work/transcript.txt" || fail "no CTRL EXIT"
echo "passed"
