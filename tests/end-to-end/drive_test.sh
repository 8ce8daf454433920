#!/usr/bin/env bash
# The real programs, installed, under a virtual display: real windows, real key presses, a real link. Looks at what the
# office gets.
#   drive_test.sh BUILD-FOLDER
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
build=$1
work=$(mktemp -d)
trap '[ -z "${KEEP:-}" ] || cp -r "$work" "$KEEP"; kill "${display:-}" 2>/dev/null || true; rm -rf "$work"' EXIT

fail() { echo "FAILED: $*"; cat "$work/transcript.txt" "$work/errors.txt" 2>/dev/null | grep -v ' DMI ' | tail -n 60; exit 1; }
is() { [ "$2" = "$3" ] || fail "$1: '$2' where '$3' is right"; }

export TREKOR_DRIVES=$work/drives TREKOR_TRACE=1 SDL_AUDIODRIVER=dummy XDG_RUNTIME_DIR=$work
export LSAN_OPTIONS=suppressions=$here/lsan.supp:print_suppressions=0
# The display's keyboard library copies from replies that are not ended by a zero, as its protocol has it.
export ASAN_OPTIONS=${ASAN_OPTIONS:-detect_leaks=1}:strict_string_checks=0
# As a person gets them: from a folder that has nothing of the build beside it.
cmake --install "$build" --prefix "$work/usr" >/dev/null
programs=$work/usr/bin share=$work/usr/share/trekor
databases=$TREKOR_DRIVES/C/Veldmark/Trekor/MDB
mkdir -p "$databases"
cp "$share/sample/Observations.mdb" "$databases/"
# A port of its own, so that nothing else on the machine is in the way: the link's window keeps it among its texts.
port=$((20000 + $$ % 20000))
cp "$share/Trekor.vdb" "$databases/Trekor.mdb"
sqlite3 "$databases/Trekor.mdb" "UPDATE SocketProp SET CapEnglish='$port' WHERE Name='RemotePort'"

exec 3< <(exec Xvfb -displayfd 1 -screen 0 1280x800x24 -nolisten tcp 2>/dev/null)
display=$!
read -r -u 3 number
DISPLAY=:$number "$programs/trekor-control" --launch "$programs/Trekor" --args "7707-104 /US" \
  --port "$port" --drive "$here/short.drive" </dev/null >"$work/transcript.txt" 2>"$work/errors.txt" || fail "the drive ended with $?"

for place in Messages.vdb Graphics/Pothole.png Audio/Tones/D1.wav; do
  [ -s "$TREKOR_DRIVES/C/Trekor/$place" ] || fail "$place was not found beside the program"
done
is "the sound device is opened behind the first picture" \
  "$(grep -xE 'first picture|sound device open' "$work/errors.txt" | tr '\n' ' ')" "first picture sound device open "

file=$TREKOR_DRIVES/C/Roads/SHORT01.mdb
comma=$TREKOR_DRIVES/C/Roads/SHORT01.TKR
ask() { sqlite3 -readonly "$file" "$1"; }

is "the file checks clean" "$(ask 'PRAGMA integrity_check')" ok
is "the file is plain" "$(ask 'PRAGMA journal_mode')$(ls "$file"-* 2>/dev/null)" delete
is "sessions" "$(ask "SELECT count(*) || Operator || TestSetup FROM Sessions")" "1A. LindPavement distress"
is "potholes as points" "$(ask 'SELECT count(*) FROM Registrations WHERE ObsCode=121 AND FromID=ToID')" 3
is "the note" "$(ask 'SELECT RegData FROM Registrations WHERE ObsCode=291 AND FromID=ToID')" oak
is "cracks counted in the first step" \
  "$(ask 'SELECT RegData FROM Registrations WHERE ObsCode=101 AND FromID<>ToID ORDER BY RegID LIMIT 1')" 2
is "rut class by two keys" "$(ask 'SELECT RegData FROM Registrations WHERE ObsCode=141 ORDER BY RegID LIMIT 1')" 7
is "every registration lies between stored stations" \
  "$(ask 'SELECT count(*) FROM Registrations WHERE FromID NOT IN (SELECT StationID FROM Stations)
          OR ToID NOT IN (SELECT StationID FROM Stations) OR FromID > ToID')" 0
is "the first step ends at its boundary" "$(ask 'SELECT Station FROM Stations WHERE StationType=0 LIMIT 1 OFFSET 1')" 2.1
is "points in the comma file" "$(grep -c '^5311,' "$comma")" 4
is "the note in the comma file" "$(grep -c ',291,0,"oak"' "$comma")" 1
is "the last record" "$(tail -n 1 "$comma" | tr -d '\r')" "5319,     0.0"
is "lines without a carriage return" "$(grep -vc $'\r$' "$comma" || true)" 0
grep -q -- '<- CTRL EXIT' "$work/transcript.txt" || fail "no CTRL EXIT"
echo "passed"
