#!/usr/bin/env bash
# The focus wanders between boxes, lists, floating windows and other programs, and neither the vehicle's count nor a key
# may be lost to it. Nothing here is timed: each act waits for what it has brought about.
#   focus_test.sh BUILD-FOLDER [WINDOW-MANAGER]
set -euo pipefail
. "$(dirname "$0")/operator.sh"

pad7=KP_Home # 7 with NumLock on
replace() { key End shift+Home; xdotool type "$1"; }
another_window() {
  xmessage -geometry 200x80+1000+650 "Another program" 2>/dev/null &
  started+=($!)
  until_holds find_window xmessage
  [ -n "$manager" ] || xdotool windowfocus "$found"
  until_holds has_focus "$found"
}

start_programs

# The setup list has the focus when the file locks it; the start comes at speed, behind the station that was prepared.
at 2.000
open_file LINK
order PREPARE 2.000
at 2.005 2.010 2.015 2.020 2.025
order START
order ARM
at 2.05 2.1 2.125
stop_and_close
is "stations after a start from the link" "$(stations LINK)" "2.0 2.1 2.125"

# Into every box and out again, and a start of the operator while the vehicle rolls on.
at 5.000
open_file OPERATOR
for box in station step previous buffer grid station; do click $box; done
order PREPARE 5.000
key F2
until_holds find_window 'Enter  Station'
until_holds has_focus "$found"
has_icon "$found"
key Return
heard "SET DMI  0 1  5"
until_holds has_focus "$window" # or no key of the run would come
heard "STATUS START"
at 5.025 5.05
until_running
at 5.1
key Num_Lock # is frozen
settled
key F5 $pad7
at 5.125
key space
settled
order ARM
stop_and_close
is "stations after the operator's start" "$(stations OPERATOR)" "5.0 5.1 5.125 5.125"
is "rut class by two keys" "$(ask OPERATOR 'SELECT RegData FROM Registrations WHERE ObsCode=141 ORDER BY RegID DESC LIMIT 1')" 7
click station
key $pad7 # Home again, as before the run
click buffer

# Another program has the keyboard at the start; the operator comes back in the middle of the run, and clicks the
# floating keypad.
point view
key p
until_holds find_window '^Keypad'
keypad=$found
has_icon "$keypad"
until_holds has_focus "$window"
at 9.000
open_file BEHIND
click buffer
another_window
order PREPARE 9.000
order START
at 9.025
click grid
xdotool windowfocus "$keypad"
until_holds has_focus "$keypad"
key space
settled
xdotool mousemove --window "$keypad" 40 40 click 1
until_holds has_focus "$window"
key F3
heard "CTRL PAUSE"
key F2
resumed
at 9.1
stop_and_close
is "stations with another window in front" "$(stations BEHIND)" "9.0 9.025 9.1 9.1"

xdotool windowfocus "$keypad" # which in idle has keys of its own again
until_holds has_focus "$keypad"
key Escape
until_holds has_focus "$window"

# A question above a form: both go at once, for the operator and for a run of the link.
ask_whether_to_save() {
  key alt+s p
  until_holds find_window '^Options$'
  until_holds has_focus "$found"
  key alt+l Escape
  until_holds find_window '^Save changes'
  until_holds has_focus "$found"
}
for _ in 1 2 3; do
  ask_whether_to_save
  key Escape
  until_holds has_focus "$window"
  settled
done
at 3.000
open_file ASKED
order PREPARE 3.000
ask_whether_to_save
order START
until_holds has_focus "$window"
at 3.025
key space
settled
at 3.1
stop_and_close
is "stations of a run that began under a question" "$(stations ASKED)" "3.0 3.025 3.1 3.1"

# What was typed is sent, once; downwards too.
click station
replace 7
point step
heard "SET DMI  0 1  7"
click previous
click station
click buffer
send "SET DMI 0 D 7"
open_file DOWN
order PREPARE 7.000
at 6.99
order START
at 6.95 6.9 6.875
stop_and_close
is "stations on the way down" "$(stations DOWN)" "7.0 6.9 6.875"

end_programs
