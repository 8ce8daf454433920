#!/usr/bin/env bash
# A season of one file with the keyboard alone: made in a folder of its own, collected in, closed, opened again for a second
# session, exported joined and kept. Every byte of what the exports give is compared with what the closes gave.
#   files_test.sh BUILD-FOLDER [WINDOW-MANAGER]
set -euo pipefail
. "$(dirname "$0")/operator.sh"

menu() { # LETTERS of the menu and its entry, and the title of the form that comes up
  key "alt+$1"
  key "$2"
  until_holds find_window "$3"
  asking=$found
  until_holds has_focus "$asking"
}
back() { until_holds has_focus "$window"; }
collect() { # STATION KEY: two steps, in the first of which the key is pressed
  at "$1".000
  order PREPARE "$1".000
  order START
  until_running
  at "$1".020
  key "$2"
  settled
  at "$1".100 "$1".200
  settled
  stop_and_close
  back
}
files() { (cd "$roads" && echo *); }
# The head counts the observations of all files that the program has written since its start, in the number behind the version in this
# record; offices know that.
uncounted() { sed -E 's/^(5001,[^,]*,[^,]*),[0-9]+,/\1,,/' "$1"; }
same() { cmp <(uncounted "$1") <(uncounted "$2") || fail "$1 is not $2"; }

start_programs
roads=$TREKOR_DRIVES/C/Trekor/Roads

menu f n '^New data file'
key alt+f
until_holds find_window '^New folder'
until_holds has_focus "$found"
xdotool type 'Ro/ads'
key Return
until_holds has_focus "$asking"
xdotool type SEASON
key Return
heard "FILE PATH C:\\Trekor\\Roads"
heard "FILE SESSION 1"
heard "FILE OPEN"
back
collect 2 a
is "files of the first session" "$(files)" "SEASON.TKR SEASON.mdb"
cp "$roads/SEASON.TKR" "$work/first"

menu f o '^Open data file'
key Down
key Return
heard "FILE NAME SEASON"
heard "FILE SESSION 2"
heard "FILE OPEN"
back
collect 5 d
is "files of the second session" "$(files)" "SEASON-02.TKR SEASON.TKR SEASON.mdb"
cp "$roads/SEASON-02.TKR" "$work/second"
cmp "$work/first" "$roads/SEASON.TKR" || fail "the second session has changed the first one's file"
is sessions "$(sqlite3 -readonly "$roads/SEASON.mdb" "SELECT group_concat(SessionID) FROM Sessions")" "1,2"
cp "$roads/SEASON.mdb" "$work/data"
rm "$roads"/*.TKR

menu f e '^Export data files'
key ctrl+a
key Return
back
is "joined" "$(files)" "SEASON.TKR SEASON.mdb"
mv "$roads/SEASON.TKR" "$work/joined"
menu f e '^Export data files'
key ctrl+a
key Tab Tab space # onto "Keep sessions apart"
key Return
back
is "kept" "$(files)" "SEASON-01.TKR SEASON-02.TKR SEASON.mdb"
same "$roads/SEASON-01.TKR" "$work/first"
same "$roads/SEASON-02.TKR" "$work/second"
cmp "$roads/SEASON.mdb" "$work/data" || fail "an export has changed the data file"
"$build/bin/trekor-export" --setup Pavement "$roads/SEASON.mdb" >/dev/null
same "$roads/SEASON.TKR" "$work/joined"

# A file of the link takes away a question and the form below it at once; the keyboard must find its way back.
for i in 1 2 3 4 5; do
  menu f o '^Open data file'
  key Down Delete
  until_holds find_window '^Delete data file'
  until_holds has_focus "$found"
  send "FILE NAME ZEBRA$i"
  send "FILE OPEN"
  back
  send "FILE CLOSE"
  heard "FILE CLOSE"
done

end_programs
