#!/usr/bin/env bash
# The control centre with small programs at the other end: what it says, and what its exit code says.
#   control_test.sh BUILD-FOLDER
set -euo pipefail
. "$(dirname "$0")/programs.sh"
unset DISPLAY WAYLAND_DISPLAY

port=$((20000 + $$ % 20000))
# WANTED-CODE WANTED-WORDS WORDS...: the transcript without its times, or the complaint when there is none.
centre() {
  local code=0 wanted=$1 words=$2
  shift 2
  timeout 30 "$build/bin/trekor-control" --port $port "$@" </dev/null >"$work/transcript.txt" 2>"$work/errors.txt" || code=$?
  is "what $* says" "$(sed -E 's/^.{10}//; /listening on|connection closed/d; s/[0-9]{8}-[0-9]{6}/NOW/' "$work/transcript.txt"; cat "$work/errors.txt")" "$words"
  is "the exit code of $*" $code "$wanted"
}

echo "at 1 fly" >"$work/wrong.drive"
centre 1 "trekor-control: not understood: surplus; see --help" surplus
centre 1 "trekor-control: line 1: not understood: at 1 fly" --drive "$work/wrong.drive"
centre 1 "trekor-control: cannot listen on 127.0.0.1:85495; is another one running?" --port 85495 # 19959 and 65536
centre 0 "-- the program has ended" --launch true
centre 1 "-- the program has failed (1)" --launch false
centre 1 "-- cannot start /no/such/program" --launch /no/such/program

# Comes up, sees a second connection end, and ends when it is told to.
cat >"$work/program" <<'END'
exec 3<>/dev/tcp/127.0.0.1/$1 4<>/dev/tcp/127.0.0.1/$1
cat <&4 || true
printf 'SET SYSTEM TREKOR\r\n' >&3
sed -n '/^CTRL EXIT/q' <&3
END
cat >"$work/road.gpx" <<'END'
<gpx><trkpt lat="45" lon="13"/><trkpt lat="45.1" lon="13"/></gpx>
END
printf '%s\n' 'track road.gpx' 'at 0.2 send FILE NAME {time}' 'at 0.3 end' >"$work/good.drive"
centre 0 "-- connection opened
-- a second connection was turned away
<- SET SYSTEM TREKOR
-> SET DMI 0 I 0.0000
-- the track has no times: it is driven at 60 km/h
-> FILE NAME NOW
-> CTRL EXIT
-- the program has ended" --brief --drive "$work/good.drive" --launch bash --args "$work/program $port"
echo "at 0 key Nokey" >"$work/failing.drive"
centre 2 "-- connection opened
-- a second connection was turned away
<- SET SYSTEM TREKOR
-> SET DMI 0 I 0.0000
-- key Nokey
-- the drive has failed: no windowing system to press keys in" --drive "$work/failing.drive" --launch bash --args "$work/program $port"
(sleep 1; exec 3<>/dev/tcp/127.0.0.1/$port) &
centre 0 "-- connection opened"
echo "passed"
