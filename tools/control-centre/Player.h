// Plays a drive: moves the vehicle along, sends DMI and GPS, and carries out each event at its time.
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
  // A wait longer than this ends the drive with Failed.
  double patienceSeconds = 30;

signals:
  void Ended();                    // the event "end" has been reached
  void Failed(const QString& why); // a wait too long, an unknown key, a picture that can't be written

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
  double now = 0;                     // drive time in seconds: real time times the pace, without waits
  double last = 0;                    // real time of the last tick
  double way = 0;                     // kilometres driven
  double waited = 0;                  // real time that the present wait has lasted
  bool held = false;                  // a wait holds the drive
  long long dmiSent = 0, gpsSent = 0; // positions due so far, sent or not
  std::size_t next = 0;               // event
  QStringList heard;                  // lines that no wait has used yet
  long long window = 0;               // the program's, from its greeting
};

} // namespace control
