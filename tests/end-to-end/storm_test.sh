#!/usr/bin/env bash
# A hand that falls on the keyboard, a key that is stuck, a drag that is never finished: the program goes on, what is stored is
# right, and the next key counts.
#   storm_test.sh BUILD-FOLDER [WINDOW-MANAGER]
set -euo pipefail
. "$(dirname "$0")/operator.sh"

place+=([keyboard]="96 77" [A]="115 275" [Q]="92 222" [crack]="281 459")
vocabulary() { sqlite3 -readonly -cmd ".timeout 5000" "$TREKOR_DRIVES/C/Veldmark/Trekor/MDB/Observations.mdb" "$1"; }
keys_of_setup() { vocabulary "SELECT group_concat(ObsParID || ' ' || KeyCode) FROM Setups WHERE SetupID=1"; }
# Waits until the program answers, and leaves whatever it asks.
calm() {
  heard_after_storm "CTRL ARM" "ACK Trekor CTRL ARM"
  for attempt in {1..5}; do key Escape; done
}
# A storm sends positions that nobody has typed; all that matters is that it still hears and answers.
heard_after_storm() { # ORDER LINE
  send "$1"
  while IFS= read -r -t 30 -u 5 line; do [[ ${line:10} != "<- $2"* ]] || return 0; done
  fail "not heard: $2"
}
closed() { ! compgen -G "$TREKOR_DRIVES/C/Roads/$1.mdb-wal" >/dev/null; }
close_now() {
  send "CTRL STOP"
  send "FILE CLOSE"
  heard_after_storm "CTRL ARM" "ACK Trekor CTRL ARM"
  closed "$1"
}

start_programs
before=$(keys_of_setup)

# Two hundred keys a second.
at 2.000
open_file STUCK
order PREPARE 2.000
order START
until_running
xdotool key --delay 5 --repeat 600 s
for km in 2.05 2.1 2.15; do at $km; done
key Delete # nothing to take back
xdotool key --delay 5 --repeat 300 b # off and on
until_holds answers "CTRL SUSPEND" "CTRL PAUSE"
order RESUME
resumed
key c
stop_and_close
is "keys beyond their limits" "$(ask STUCK "SELECT count(*) FROM Registrations WHERE ObsCode=102 AND RegData<>'' AND CAST(RegData AS INTEGER) NOT BETWEEN 0 AND 20 OR ObsCode=112 AND RegData NOT IN ('0', '1')")" 0
is "the key behind the storm" "$(ask STUCK "SELECT group_concat(RegData, ' ') FROM Registrations WHERE ObsCode=143 AND RegData<>'0'")" 1

# All sorts of them, commands and keys that ask among them; the vehicle rolls on.
all=(a s d f r b p e c n space F1 F2 F3 F5 F6 F7 F8 F10 F12 Return Tab Delete Alt_L Up Down 1 2 7 KP_Add KP_Subtract Num_Lock Escape F4)
RANDOM=7
at 5.000
open_file STORM
order PREPARE 5.000
order START
until_running
for round in {1..8}; do
  some=()
  for each in {1..60}; do some+=("${all[RANDOM % ${#all[@]}]}"); done
  xdotool key --delay 5 "${some[@]}" &
  for km in 5.${round}1 5.${round}3 5.${round}7; do send "DMI $km"; done
  wait $!
done
calm
until_holds close_now STORM
is "the file" "$(ask STORM "PRAGMA integrity_check")" ok
is "values without their stations" "$(ask STORM "SELECT count(*) FROM Registrations WHERE FromID NOT IN (SELECT StationID FROM Stations) OR ToID NOT IN (SELECT StationID FROM Stations)")" 0
is "the keys of the setup" "$(keys_of_setup)" "$before"

# A drag that leaves the window, and one that a start of the control program overtakes.
point keyboard
xdotool mousemove --window "$window" ${place[A]} mousedown 1 mousemove 1275 795 mouseup 1
xdotool mousemove --window "$window" ${place[A]} mousedown 1 mousemove --window "$window" 100 230
at 7.000
open_file DRAG
order PREPARE 7.000
order START
until_running
xdotool mousemove --window "$window" ${place[Q]} mouseup 1
key a
stop_and_close
is "the keys of the setup" "$(keys_of_setup)" "$before"
is "the key behind the drag" "$(ask DRAG "SELECT RegData FROM Registrations WHERE ObsCode=101")" 1

end_programs
