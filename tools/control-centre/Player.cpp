// A drive is a series of moments: those of the events, and those of the positions at their own rates. A tick carries
// out all that are due since the last one, each with its own time, so neither a slow machine nor the length of a tick
// changes what is sent. While an event waits, time and the vehicle stand still.
#include "Player.h"

#include <QDateTime>
#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>
#include <algorithm>
#include <limits>

namespace control {

namespace {
constexpr int TickMilliseconds = 5;
constexpr qsizetype HeardAtMost = 10000;

// "{time}" stands for the present moment, so that a drive which is repeated names another file each time.
QString Filled(QString line) {
  return line.replace("{time}", QDateTime::currentDateTime().toString("yyyyMMdd-HHmmss"));
}
} // namespace

Player::Player(Drive d, LinkServer& l, KeyPresser& k, QObject* parent)
    : QObject(parent), drive(std::move(d)), link(l), keys(k) {
  connect(&link, &LinkServer::Line, this, &Player::Hear);
  connect(&timer, &QTimer::timeout, this, &Player::Tick);
  timer.setTimerType(Qt::PreciseTimer);
}

// "HWND Trekor  41943047" in the greeting; "SET SYSTEM TREKOR UNKNOWN 7707-104" when the program is up.
void Player::Hear(const QString& line) {
  heard.append(line);
  if (heard.size() > HeardAtMost)
    heard.removeFirst();
  if (line.startsWith("HWND "))
    window = line.section(' ', -1).toLongLong();
  if (line.startsWith("SET DMI "))
    SetCount(line.split(' ', Qt::SkipEmptyParts));
  if (line.startsWith("SET SYSTEM ") && !timer.isActive()) {
    TellStart();
    wall.start();
    timer.start(TickMilliseconds);
  }
}

// "SET DMI 0 D 10.0500": where the vehicle stands and which way its stations count.
void Player::TellStart() {
  link.Send(QString("SET DMI 0 %1 %2").arg(drive.increasing ? "I" : "D").arg(drive.startKm, 0, 'f', 4));
  if (drive.replaysTrack && !drive.track.Note().isEmpty())
    link.Tell("--", drive.track.Note());
}

// "SET DMI  0 -1  12.35": the operator has turned the direction or set the count; the instrument counts on from there.
void Player::SetCount(const QStringList& words) {
  if (words.size() != 5)
    return;
  drive.increasing = words[3] == "1";
  drive.startKm = words[4].toDouble() + (drive.increasing ? -way : way);
}

void Player::Tick() {
  const double present = static_cast<double>(wall.nsecsElapsed()) / 1e9, passed = present - last;
  last = present;
  if (!held)
    return DriveTo(now + passed * drive.pace);
  RunEvent();
  waited = held ? waited + passed : 0;
  if (waited > patienceSeconds)
    Fail("waited in vain for: " + drive.events[next].text);
}

// An event goes before a position of the same moment.
void Player::DriveTo(double moment) {
  constexpr double never = std::numeric_limits<double>::infinity();
  while (timer.isActive() && !held) {
    const double event = next < drive.events.size() ? drive.events[next].seconds : never;
    const double dmi = drive.dmiPerSecond > 0 ? static_cast<double>(dmiSent) / drive.dmiPerSecond : never;
    const double gps = drive.gpsPerSecond > 0 ? static_cast<double>(gpsSent) / drive.gpsPerSecond : never;
    const double due = std::min({event, dmi, gps});
    MoveTo(std::min(due, moment));
    if (due > moment)
      return;
    if (due == event)
      RunEvent();
    else if (due == dmi)
      SendDmi();
    else
      SendGps();
  }
}

// Carries out the next event; a wait that is not met yet holds the rest.
void Player::RunEvent() {
  held = Waiting(drive.events[next]);
  if (!held)
    Do(drive.events[next++]);
}

void Player::Fail(const QString& why) {
  timer.stop();
  emit Failed(why);
}

// Asked once a tick: a wait that is met uses up the lines to its own.
bool Player::Waiting(const Event& event) {
  if (event.action == Event::Action::WaitWindow)
    return !keys.WindowShown(event.text.toStdString());
  if (event.action != Event::Action::Wait)
    return false;
  for (qsizetype i = 0; i < heard.size(); ++i)
    if (heard[i].startsWith(event.text)) {
      heard.remove(0, i + 1);
      return false;
    }
  return true;
}

void Player::Do(const Event& event) {
  switch (event.action) {
  case Event::Action::Send:
    return link.Send(Filled(event.text));
  case Event::Action::Key:
    return Press(event);
  case Event::Action::Speed:
    drive.speed = event.number;
    drive.replaysTrack = false;
    return link.Tell("--", "speed " + event.text);
  case Event::Action::Screenshot:
    return TakeScreenshot(event.text);
  case Event::Action::End:
    timer.stop();
    emit Ended();
    return;
  case Event::Action::Wait:
  case Event::Action::WaitWindow:
    return; // it has come
  }
}

void Player::Press(const Event& event) {
  keys.Focus(window);
  link.Tell("--", "key " + event.text);
  if (keys.Press(event.text.toStdString()))
    return;
  Fail(keys.Available() ? "no such key: " + event.text : "no windowing system to press keys in");
}

void Player::TakeScreenshot(const QString& path) {
  auto* screen =
      qobject_cast<QGuiApplication*>(QCoreApplication::instance()) ? QGuiApplication::primaryScreen() : nullptr;
  if (screen && screen->grabWindow(0).save(path, "PNG"))
    return link.Tell("--", "screenshot " + path);
  Fail("could not take the screenshot " + path);
}

// An event with an earlier time, after a wait, does not set the time back.
void Player::MoveTo(double moment) {
  const double passed = std::max(0.0, moment - now);
  now += passed;
  if (drive.replaysTrack)
    way = drive.track.AtSeconds(now).km;
  else
    way += drive.speed / 3600 * passed;
}

double Player::StationKm() const {
  return drive.increasing ? drive.startKm + way : drive.startKm - way;
}

// "DMI 10.0417". Nothing is sent for a vehicle that stands and has no track.
void Player::SendDmi() {
  ++dmiSent;
  if (drive.replaysTrack || drive.speed != 0)
    link.Send("DMI " + QString::number(StationKm(), 'f', 4));
}

// "GPS 61705 45.2725250 13.7124552 206.3 1 9 0 0 0 0": time of day, position, height, status, satellites.
void Player::SendGps() {
  ++gpsSent;
  if (drive.track.Empty())
    return;
  const TrackPoint p = drive.replaysTrack ? drive.track.AtSeconds(now) : drive.track.AtKm(way);
  const int seconds = static_cast<int>(p.timeOfDay + 0.001); // a whole second that was worked out may lie just below
  link.Send(QString("GPS %1 %2 %3 %4 1 9 0 0 0 0")
                .arg(seconds / 3600 * 10000 + seconds / 60 % 60 * 100 + seconds % 60)
                .arg(p.latitude, 0, 'f', 7)
                .arg(p.longitude, 0, 'f', 7)
                .arg(p.height, 0, 'f', 1));
}

} // namespace control
