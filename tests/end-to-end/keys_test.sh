#!/usr/bin/env bash
# An operator puts an observation on a key with the mouse, collects with it, moves it and takes it away; each time the
# setup database must have it at once.
#   keys_test.sh BUILD-FOLDER [WINDOW-MANAGER]
set -euo pipefail
. "$(dirname "$0")/operator.sh"

# From the picture of the main window at its first size.
place+=([keyboard]="96 77" [A]="115 275" [Q]="92 222" [F1]="51 118" [F9]="722 118" [crack]="281 459")
crack=1 # its item in the vocabulary
vocabulary() { sqlite3 -readonly -cmd ".timeout 5000" "$TREKOR_DRIVES/C/Veldmark/Trekor/MDB/Observations.mdb" "$1"; }
key_is() { [ "$(vocabulary "SELECT KeyCode FROM Setups WHERE SetupID=1 AND ObsParID=$crack")" = "$1" ]; }
drag() { # WINDOW X Y WINDOW X Y
  xdotool mousemove --window "$1" "$2" "$3" mousedown 1
  xdotool mousemove --window "$4" $(($5 - 6)) $(($6 - 6)) mousemove --window "$4" "$5" "$6" mouseup 1
}
drag_within() { drag "$window" ${place[$1]} "$window" ${place[$2]}; }
delete() { point "$1"; key Delete; }
collect() { # FILE KEY: a run of one step, in which the key is pressed once
  at 2.000
  open_file "$1"
  order PREPARE 2.000
  order START
  until_running
  key "$2"
  settled
  at 2.1
  order ARM
  stop_and_close
}
cracks() { ask "$1" "SELECT group_concat(RegData, ' ') FROM Registrations WHERE ObsCode=$code"; }

start_programs
code=$(vocabulary "SELECT ObsCode FROM Observations WHERE ObsParID=$crack")
point keyboard
is "the sample's key" "$(key_is 65 && echo A)" A
delete A
until_holds key_is -1
drag_within crack Q
until_holds key_is 81
collect WITHQ q
is "collected with the new key" "$(cracks WITHQ)" 1
collect WITHA a
is "collected with the old key" "$(cracks WITHA)" ""

drag_within Q F1 # the program's own
drag_within Q F9
until_holds key_is 120
collect WITHF9 F9
is "collected with the moved key" "$(cracks WITHF9)" 1
delete F9
until_holds key_is -1

# The floating keypad, a window of its own; the keyboard of the window system stays with the main form.
point view
key p
until_holds find_window '^Keypad'
keypad=$found
until_holds has_focus "$window"
eval "$(xdotool getwindowgeometry --shell "$keypad" | grep -E 'WIDTH|HEIGHT')"
drag "$window" ${place[crack]} "$keypad" $((WIDTH / 8)) $((HEIGHT * 3 / 10)) # the 7, in row 2 of 5
until_holds key_is 103
has_focus "$window" || fail "the keypad has kept the keyboard"

end_programs
