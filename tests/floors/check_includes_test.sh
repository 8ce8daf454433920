#!/usr/bin/env bash
# Shows that scripts/check-includes sees what it is there for: each case makes one fault in a small house with the table of the real
# one, and names what must be said about it.
set -euo pipefail
cd "$(dirname "$0")/../.."
house=$(mktemp -d)
trap 'rm -rf "$house"' EXIT
failed=0

build_house() { # one harmless file a room
  rm -rf "$house"/*
  mkdir "$house/src" "$house/app"
  cp src/floors.txt "$house/src/"
  for room in $(sed -nE 's/^[0-9] ([a-z_]+).*/\1/p' src/floors.txt); do
    [ "$room" = app ] && continue
    mkdir "$house/src/$room"
    printf '#pragma once\n#include <string>\n' >"$house/src/$room/A.h"
  done
  printf '#include "program/A.h"\n#include "views/A.h"\n#include <QApplication>\n' >"$house/app/main.cpp"
}

told() { # EXPECTED: what is wrong now is told, and nothing else
  local said
  if said=$(scripts/check-includes "$house") || [ "$said" != "$1" ]; then
    echo "wanted: $1"; echo "   got: ${said:-nothing}"; failed=1
  fi
}

build_house
scripts/check-includes "$house" || { echo "the sound house is refused"; failed=1; }

while IFS='|' read -r file line expected; do
  build_house
  printf '%s\n' "$line" >>"$house/$file"
  told "$file $expected"
done <<'E2'
src/values/A.h|#include "store/A.h"|(values) may not include store/A.h (store)
src/platform/A.h|#include "values/A.h"|(platform) may not include values/A.h (values)
src/state/B.cpp|  #  include  "collection/A.h" // up|(state) may not include collection/A.h (collection)
src/dbupdate/A.h|#include "texts/A.h"|(dbupdate) may not include texts/A.h (texts)
src/link/A.h|#include "program/A.h"|(link) may not include program/A.h (program)
src/views/A.h|#include "state/A.h"|(views) may not include state/A.h (state)
src/values/A.h|#include "../store/A.h"|(values) may not include ../store/A.h (..)
src/program/B.cpp|#include <QString>|(program) may not include QString (qt)
src/collection/A.h|#include <QtCore/qnamespace.h>|(collection) may not include QtCore/qnamespace.h (qt)
src/collection/A.h|#include <qt6/QtCore/QString>|(collection) may not include qt6/QtCore/QString (qt)
src/datafiles/A.h|#include <sqlite3.h>|(datafiles) may not include sqlite3.h (sqlite3)
src/platform_qt/A.h|#include <X11/Xlib.h>|(platform_qt) may not include X11/Xlib.h (x11)
src/platform_os/A.h|#include <QFile>|(platform_os) may not include QFile (qt)
src/datafiles/A.h|#include <sys/stat.h>|(datafiles) may not include sys/stat.h (machine)
app/main.cpp|#include <SDL.h>|(app) may not include SDL.h (sdl)
E2

# The table itself: a circle cannot be written into it, and it names the folders that are there.
build_house
sed -i 's/^3 dbupdate .*/& options/' "$house/src/floors.txt"
told "floors.txt: dbupdate names options, which does not stand above it"

build_house
sed -i 's/^3 services .*/3 services 0-3/' "$house/src/floors.txt"
told "floors.txt: services may not include its own floor and those above as a whole"

build_house
mkdir "$house/src/attic" && echo >"$house/src/attic/A.h"
told "attic/ has no row in floors.txt"

build_house
rm -r "$house/src/setup"
told "floors.txt: there is no folder setup"

exit $failed
