// A drive: which track, how fast, which lines are sent and which keys pressed when. See docs/control-centre.md.
#pragma once

#include "Track.h"

#include <QString>
#include <vector>

namespace control {

struct Event {
  enum class Action {
    Send,       // a line to the program
    Key,        // a key pressed and released: "F5", "A", "Space", "Num 3", "Ctrl+Shift+M"
    Speed,      // km/h from now on
    Wait,       // holds all later events until the program has sent a line that begins with the text
    WaitWindow, // holds all later events until the program shows a window whose title holds the text
    Screenshot, // the whole screen as a PNG file
    End,        // asks the program to end and waits for it
  };
  double seconds = 0; // since the program has introduced itself, without the waits
  Action action = Action::Send;
  QString text;
  double number = 0;
};

struct Drive {
  Track track;
  double startKm = 0; // station at the start of the drive
  bool increasing = true;
  double speed = 0;          // km/h at the start
  bool replaysTrack = false; // no speed given: driven by the track's own times
  double pace = 1;           // how many seconds of the drive pass in one: events, messages and the vehicle
  double dmiPerSecond = 10, gpsPerSecond = 1;
  std::vector<Event> events; // in order of time, as written when equal
};

// Reads a script, or a bare GPX or NMEA file as a drive that replays it. Paths in a script are relative to it. False
// with the line and the reason.
bool ReadDrive(const QString& path, Drive& drive, QString* reason);
bool ReadScript(const QString& text, const QString& folder, Drive& drive, QString* reason);

} // namespace control
