#!/usr/bin/env bash
# Every key of both pictures, pressed in a run, stands in the data file with its own code, and once: whatever NumLock and the
# layout of the keyboard are, and whatever the operator has clicked or pressed before.
#   every_key_test.sh BUILD-FOLDER [WINDOW-MANAGER]
set -euo pipefail
. "$(dirname "$0")/operator.sh"

# The machine's number of each key, by the code under which it is stored.
declare -A board=([32]=65) pad=([106]=63 [107]=86 [109]=82 [110]=91 [111]=106)
row() { # CODES FIRST-NUMBER: neighbouring keys
  local number=$2 code
  for code in $1; do board[$code]=$((number++)); done
}
codes() { printf '%s' "$1" | od -An -v -t u1; }
row "49 50 51 52 53 54 55 56 57 48" 10
row "$(codes QWERTYUIOP)" 24
row "$(codes ASDFGHJKL)" 38
row "$(codes ZXCVBNM)" 52
row "116 117 118 119 120 121" 71
numbers=(90 87 88 89 83 84 85 79 80 81)
for digit in {0..9}; do pad[$((96 + digit))]=${numbers[digit]}; done
signs="106 107 109 111" # of the pad, which write the same whatever NumLock is
sorted() { printf '%s\n' "$@" | sort -n | tr '\n' ' '; }

# An item for each key, which counts its presses within a step. Two keys that no setup may have (Enter, F12) have none.
sample="DELETE FROM Setups; DELETE FROM Observations; DELETE FROM ObsLinguistic;"
for code in "${!board[@]}" "${!pad[@]}"; do
  sample+="INSERT INTO ObsLinguistic(LanguageID, ObsCode, ObsNameDisp, ObsAbrvDisp) VALUES(1, 1000+$code, 'Key $code', '$code');
    INSERT INTO Observations(ObsParID, LanguageID, ObsCode, DataType, Min, Max, RegModeCode, KeyingCode) VALUES($code, 1, 1000+$code, 1, 0, 99, 1, 1);
    INSERT INTO Setups(SetupID, ObsParID, GridPosition, KeyCode) VALUES(1, $code, $code, $code);"
done

place+=([freeze]="613 240" [camera]="248 42" [play]="38 42")
file=0
begin() { # a run
  name=RUN$((++file))
  at 2.000
  open_file $name
  order PREPARE 2.000
  order START
  until_running
}
end() {
  key Escape
  heard "STATUS STOP"
  until_holds answers "FILE CLOSE" "FILE CLOSE"
}
# Sixteen keys at most wait for the run. It answers to F2 behind them.
taken() { key F2; heard "STATUS START"; }
press() { # CODES
  local waiting=0 code
  for code in "$@"; do
    key "${board[$code]:-${pad[$code]}}"
    [ $((++waiting % 14)) != 0 ] || taken
  done
  taken
}
press_all() { press "${!board[@]}" "${!pad[@]}"; }
counted() { # WHAT TIMES CODES: what is in the file, and nothing else
  local rows="(SELECT ObsCode, RegData FROM Registrations WHERE RegData<>'' AND RegData<>'0' ORDER BY ObsCode)"
  is "$1" "$(ask $name "SELECT group_concat((ObsCode-1000) || ' ' || RegData, ',') FROM $rows")" \
    "$(sorted "${@:3}" | tr ' ' '\n' | grep . | sed "s/\$/ $2/" | paste -s -d ,)"
}

start_programs

point freeze
begin
press_all
end
counted "NumLock off" 1 "${!board[@]}" $signs

key Num_Lock
key Caps_Lock
begin
press_all
end
counted "NumLock on, capitals" 1 "${!board[@]}" "${!pad[@]}"
key Num_Lock
key Caps_Lock
point freeze

# Keys that menus, the focus and the toolkit know, each in front of one that must still come.
begin
press $signs
for other in Tab shift+Tab Alt_L F10 Return KP_Enter Menu Up Prior ctrl+Tab F1 F12 Delete Super_L shift+F10 97; do
  key "$other"
  press 81
  has_focus "$window" || fail "$other takes the keyboard away"
  [ "$other" = F10 ] || press 121
done
key alt+f # is the F of the run and opens no menu
taken
end
is "keys behind others" "$(ask $name "SELECT group_concat(RegData) FROM Registrations WHERE ObsCode IN (1070, 1081, 1121)")" "1,16,17"

# Wherever he has clicked, and behind a floating window.
point view
key p
until_holds find_window '^Keypad'
keypad=$found
xdotool windowmove "$keypad" 900 450 # off the bar
until_holds has_focus "$window"
begin
point camera
heard "EVENT CLICK"
press_all
point play # is off
point grid
press_all
xdotool windowfocus "$keypad"
until_holds has_focus "$keypad"
press_all
end
counted "NumLock frozen, three times" 3 "${!board[@]}" "${!pad[@]}"
point grid
until_holds has_focus "$window"

# A key that is held comes again and again.
xdotool keydown F11
heard "EVENT CLICK"
heard "EVENT CLICK"
xdotool keyup F11

# Letters are those of the layout or, where it writes other ones, of the key's place.
for layout in ru dk; do
  setxkbmap $layout
  begin
  press_all
  end
  counted "layout $layout" 1 "${!board[@]}" "${!pad[@]}"
done

end_programs
