#!/usr/bin/env bash
# Keys under load, a short form of the measurement: on a busy machine and with sanitizers a key may be seen late, but none
# may be lost. Where the machine gives the program no turn for a second the ring overflows, as it is meant to: that
# does not happen twice.
#   load_test.sh BUILD-FOLDER
set -euo pipefail
. "$(dirname "$0")/programs.sh"
fresh_display
measure() {
  fresh_drives
  "$build/bin/trekor_keys_bench" "$build/bin/Trekor" "$port" 70 80 2>"$work/errors.txt"
}
measure || measure || fail "the measurement ended with $? twice"
echo "passed"
