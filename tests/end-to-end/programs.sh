# The real programs under a virtual display, for the drives of this folder: real windows, real keys, a real link.
#   . programs.sh BUILD-FOLDER
# Everything lives in $work and goes at the end; KEEP=FOLDER leaves a copy of it there.
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
build=$1
work=$(mktemp -d)
started=()

finish() {
  for process in "${started[@]}"; do kill "$process" 2>/dev/null || true; done
  [ -z "${KEEP:-}" ] || cp -r "$work/." "$KEEP"
  rm -rf "$work"
}
trap finish EXIT

fail() {
  echo "FAILED: $*"
  cat "$work"/transcript.txt "$work"/errors.txt 2>/dev/null | grep -v ' DMI ' | tail -n 60
  exit 1
}
is() { [ "$2" = "$3" ] || fail "$1: '$2' where '$3' is right"; }
# A question to the data file of a job.
ask() { sqlite3 -readonly "$TREKOR_DRIVES/C/Roads/$1.mdb" "$2"; }

export TREKOR_TRACE=1 SDL_AUDIODRIVER=dummy XDG_RUNTIME_DIR=$work
export LSAN_OPTIONS=suppressions=$here/lsan.supp:print_suppressions=0
# The display's keyboard library copies from replies that are not ended by a zero, as its protocol has it.
export ASAN_OPTIONS=${ASAN_OPTIONS:-detect_leaks=1}:strict_string_checks=0

# Empty drives with the sample vocabulary, and a port of its own, so that nothing else on the machine is in the way: the
# link's window keeps it among its texts.
fresh_drives() {
  export TREKOR_DRIVES=$work/drives
  rm -rf "$TREKOR_DRIVES"
  local databases=$TREKOR_DRIVES/C/Veldmark/Trekor/MDB
  mkdir -p "$databases"
  cp "$build/share/trekor/sample/Observations.mdb" "$databases/"
  port=$((20000 + $$ % 20000))
  cp "$build/share/trekor/Trekor.vdb" "$databases/Trekor.mdb"
  sqlite3 "$databases/Trekor.mdb" "UPDATE SocketProp SET CapEnglish='$port' WHERE Name='RemotePort'"
}

# With $frames its picture is a file in that folder, which shows more than "xwd -root": that leaves out what floats.
fresh_display() {
  local number
  exec 3< <(exec Xvfb ${frames:+-fbdir "$frames"} -displayfd 1 -screen 0 1280x800x24 -nolisten tcp 2>/dev/null)
  started+=($!)
  read -r -u 3 number
  export DISPLAY=:$number
}

# The control centre with the program; more words go to the control centre. It is ended after $limit seconds.
control() {
  ${limit:+timeout "$limit"} "$build/bin/trekor-control" --launch "$build/bin/Trekor" --args "7707-104 /US" --port "$port" "$@" \
    >"$work/transcript.txt" 2>"$work/errors.txt"
}
