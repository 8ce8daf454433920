// Plays a drive: moves the vehicle along, tells the program DMI and GPS, and carries out the events when their time has
// come.
#pragma once

#include "Drive.h"
#include "KeyPresser.h"
#include "LinkServer.h"

#include <QElapsedTimer>
#include <QObject>
#include <QStringList>
#include <QTimer>

namespace control {

class Player : public QObject {
  Q_OBJECT

public:
  Player(Drive drive, LinkServer& link, KeyPresser& keys, QObject* parent = nullptr);
  // A wait that is not met for so long ends the drive with Failed.
  double patienceSeconds = 30;

signals:
  void Ended();                    // the event "end" has been reached
  void Failed(const QString& why); // a wait in vain, a key that nobody knows, a picture that could not be written

private:
  void Hear(const QString& line);
  void SetCount(const QStringList& words);
  void TellStart();
  void Tick();
  void DriveTo(double moment);
  void RunEvent();
  void Fail(const QString& why);
  bool Waiting(const Event& event);
  void Do(const Event& event);
  void Press(const Event& event);
  void TakeScreenshot(const QString& path);
  void MoveTo(double moment);
  void SendDmi();
  void SendGps();
  double StationKm() const;

  Drive drive;
  LinkServer& link;
  KeyPresser& keys;
  QTimer timer;
  QElapsedTimer wall;
  double now = 0;                     // drive time in seconds: the wall's times the pace, less what waits have held
  double last = 0;                    // wall time of the last tick
  double way = 0;                     // kilometres driven
  double waited = 0;                  // how long the present wait has lasted, of the wall
  bool held = false;                  // a wait holds the drive
  long long dmiSent = 0, gpsSent = 0; // moments that have come, whether or not there was anything to tell
  std::size_t next = 0;               // event
  QStringList heard;                  // lines that no wait has used yet
  long long window = 0;               // the program's, from its greeting
};

} // namespace control
