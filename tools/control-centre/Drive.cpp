// Scripts are read line by line. A wrong line is an error with its number: skipped, a typing mistake would only show as
// a strange drive.
#include "Drive.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QTextStream>
#include <algorithm>

namespace control {

namespace {

using Action = Event::Action;
constexpr double HighestRate = 1000;

const QHash<QString, Action>& Actions() {
  static const QHash<QString, Action> table{
      {"send", Action::Send}, {"key", Action::Key},           {"speed", Action::Speed},
      {"wait", Action::Wait}, {"window", Action::WaitWindow}, {"screenshot", Action::Screenshot},
      {"end", Action::End},
  };
  return table;
}

// The first word; `rest` keeps what stands behind it, its inner blanks as they are.
QString TakeWord(QString& rest) {
  QString word = rest.section(' ', 0, 0);
  rest = rest.mid(word.size()).trimmed();
  return word;
}

bool Number(const QString& text, double& number) {
  bool ok = false;
  number = text.toDouble(&ok);
  return ok;
}

// "at 12.350 key F5", "at 12.400 send CTRL SUSPEND", "at 20 speed 60", "at 30 end"
bool ReadEvent(QString rest, Drive& drive) {
  Event event;
  const bool timed = Number(TakeWord(rest), event.seconds);
  const auto action = Actions().find(TakeWord(rest).toLower());
  if (!timed || action == Actions().end())
    return false;
  event.text = rest;
  event.action = *action;
  if (event.action == Action::Speed && !Number(event.text, event.number))
    return false;
  if (event.action != Action::End && event.text.isEmpty())
    return false;
  drive.events.push_back(event);
  return true;
}

bool ReadSetting(const QString& word, const QString& rest, const QString& folder, Drive& drive, QString* reason) {
  if (word == "track")
    return drive.track.Read(QDir(folder).absoluteFilePath(rest), reason);
  if (word == "start")
    return Number(rest, drive.startKm);
  if (word == "speed")
    return Number(rest, drive.speed);
  if (word == "pace")
    return Number(rest, drive.pace) && drive.pace > 0 && drive.pace <= HighestRate;
  if (word == "dmi")
    return Number(rest, drive.dmiPerSecond) && drive.dmiPerSecond >= 0 && drive.dmiPerSecond <= HighestRate;
  if (word == "gps")
    return Number(rest, drive.gpsPerSecond) && drive.gpsPerSecond >= 0 && drive.gpsPerSecond <= HighestRate;
  if (word == "direction") {
    drive.increasing = rest == "up";
    return rest == "up" || rest == "down";
  }
  return word == "at" && ReadEvent(rest, drive);
}

} // namespace

bool ReadScript(const QString& text, const QString& folder, Drive& drive, QString* reason) {
  drive = {};
  bool speedGiven = false;
  int number = 0;
  for (const QString& raw : text.split('\n')) {
    ++number;
    const QString line = raw.trimmed();
    if (line.isEmpty() || line.startsWith('#'))
      continue;
    QString rest = line;
    const QString word = TakeWord(rest).toLower();
    QString why = "not understood: " + line;
    if (!ReadSetting(word, rest, folder, drive, &why)) {
      *reason = QString("line %1: %2").arg(number).arg(why);
      return false;
    }
    speedGiven = speedGiven || word == "speed";
  }
  drive.replaysTrack = !speedGiven && !drive.track.Empty();
  std::stable_sort(drive.events.begin(), drive.events.end(),
                   [](const Event& a, const Event& b) { return a.seconds < b.seconds; });
  return true;
}

bool ReadDrive(const QString& path, Drive& drive, QString* reason) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    *reason = path + ": " + file.errorString();
    return false;
  }
  QByteArray bytes = file.readAll();
  if (bytes.startsWith("\xEF\xBB\xBF"))
    bytes.remove(0, 3); // a byte order mark
  const QByteArray start = bytes.trimmed().left(1);
  if (start != "<" && start != "$")
    return ReadScript(QString::fromUtf8(bytes), QFileInfo(path).absolutePath(), drive, reason);
  drive = {};
  drive.replaysTrack = true;
  return drive.track.ReadText(bytes, reason);
}

} // namespace control
