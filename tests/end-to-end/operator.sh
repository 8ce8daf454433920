# A test in which an operator sits at the real program and a control program commands it, in turns: nothing is timed, each
# act waits for what it has brought about.
#   . operator.sh BUILD-FOLDER [WINDOW-MANAGER]
. "$(dirname "${BASH_SOURCE[0]}")/programs.sh"
manager=${2:-}

# Runs until the words hold, half a minute at most.
until_holds() {
  local end=$((SECONDS + 30))
  until "$@"; do [ $SECONDS -lt $end ] || fail "in vain: $*"; sleep 0.02; done
}

# ---- the control program

send() { echo "$*" >&4; }
# The program's next line. A count that it sets without anybody waiting for that is the fault that this looks for.
next_line() { # PREFIX SECONDS
  IFS= read -r -t "$2" -u 5 line || return 1
  line=${line:10}
  [[ $line == "<- $1"* || $line != "<- SET DMI"* ]] || fail "nobody has typed this: $line (on the way to $1)"
}
heard() {
  while next_line "$1" 30; do [[ $line != "<- $1"* ]] || return 0; done
  fail "not heard: $1"
}
order() { send "CTRL $*"; heard "ACK Trekor CTRL $1"; }
at() { for km in "$@"; do send "DMI $km"; done; }
open_file() { send 'FILE PATH C:\Roads'; send "FILE NAME $1"; send "FILE OPEN"; order ARM; }
# Orders that have no effect before their time: a start that has been announced runs when it can be suspended, a run that
# has been announced as stopped is over when its file can be closed.
answers() { # ORDER LINE
  send "$1"
  while next_line "$2" 0.2; do [[ $line != "<- $2"* ]] || return 0; done
  return 1
}
# The first word of a resumption comes before the run goes on, that of another one behind it.
resumed() { heard "STATUS START"; order RESUME; heard "STATUS START"; }
until_running() { until_holds answers "CTRL SUSPEND" "CTRL PAUSE"; order RESUME; resumed; }
stop_and_close() { order STOP; heard "STATUS STOP"; until_holds answers "FILE CLOSE" "FILE CLOSE"; }

# ---- the operator

key() { xdotool key "$@"; }
# What came before the event key was handled when its event is heard.
settled() { key F11; heard "EVENT CLICK"; }
has_focus() { [ "$(xdotool getwindowfocus 2>/dev/null)" = "$1" ]; }
find_window() { found=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | tail -n 1); [ -n "$found" ]; }
# In pixels from the upper left corner of the main window's inside.
declare -A place=([station]="208 186" [step]="208 240" [previous]="208 294" [buffer]="764 186" [grid]="500 560" [view]="64 10")
point() { xdotool mousemove --window "$window" ${place[$1]} click 1; }
# Again until it works: the toolkit takes a moment to see that its window has lost the keyboard.
focused_by_click() { point "$1"; has_focus "$window"; }
click() { until_holds focused_by_click "$1"; settled; }
has_icon() { [[ $(xprop -id "$1" _NET_WM_ICON) == *Icon* ]] || fail "no icon: $(xdotool getwindowname "$1")"; }
stations() { ask "$1" "SELECT group_concat(Station, ' ') FROM (SELECT Station FROM Stations ORDER BY StationID)"; }

# ---- the programs

start_programs() {
  fresh_drives
  sqlite3 "$TREKOR_DRIVES/C/Veldmark/Trekor/MDB/Observations.mdb" "${sample:-}"
  fresh_display
  if [ -n "$manager" ]; then
    "$manager" >"$work/manager.txt" 2>&1 &
    started+=($!)
  fi
  mkfifo "$work/orders"
  exec 4<>"$work/orders"
  : >"$work/transcript.txt"
  control <&4 &
  programs=$!
  started+=($programs)
  exec 5< <(exec tail -n +1 -f --pid=$programs "$work/transcript.txt")
  heard "SET SYSTEM"
  until_holds find_window '^Veldmark Trekor'
  window=$found
  until_holds has_focus "$window"
  has_icon "$window"
}
end_programs() {
  send "CTRL EXIT"
  heard "CTRL EXIT"
  wait $programs || fail "the programs ended with $?"
  echo "passed"
}
