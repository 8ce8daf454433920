#!/usr/bin/env bash
# Keys under load, a short form of the measurement: on a busy machine and with sanitizers a key may be seen late, but none
# may be lost.
#   load_test.sh BUILD-FOLDER
set -euo pipefail
. "$(dirname "$0")/programs.sh"
fresh_drives
fresh_display
"$build/bin/trekor_keys_bench" "$build/bin/Trekor" "$port" 70 80 2>"$work/errors.txt" || fail "the measurement ended with $?"
echo "passed"
