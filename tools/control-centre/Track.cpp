// Both formats are read into the same list of points with the times as read. Distances are computed as points are
// added, the times of the drive when all points are there.
#include "Track.h"

#include <QDateTime>
#include <QFile>
#include <QList>
#include <QXmlStreamReader>
#include <algorithm>
#include <cmath>
#include <optional>

namespace control {

namespace {

constexpr double Day = 86400;
constexpr double SecondsPerKm = 60; // where nothing else is known: 60 km/h

// The time of day that follows after so many seconds, or stood before when they are negative.
double TimeAfter(double timeOfDay, double seconds) {
  const double sum = std::fmod(timeOfDay + seconds, Day);
  return sum < 0 ? sum + Day : sum;
}

// A time without a zone is meant as UTC, like all of them.
std::optional<double> GpxTime(const QString& text) {
  auto time = QDateTime::fromString(text.trimmed(), Qt::ISODateWithMs);
  if (time.timeSpec() == Qt::LocalTime)
    time.setTimeSpec(Qt::UTC);
  return time.isValid() ? std::optional(static_cast<double>(time.toMSecsSinceEpoch()) / 1000.0) : std::nullopt;
}

TrackPoint GpxPoint(QXmlStreamReader& xml, std::optional<double>& time, bool* valid) {
  TrackPoint p;
  bool latOk = false, lonOk = false;
  p.latitude = xml.attributes().value("lat").toDouble(&latOk);
  p.longitude = xml.attributes().value("lon").toDouble(&lonOk);
  while (xml.readNextStartElement())
    if (xml.name() == u"ele")
      p.height = xml.readElementText().toDouble();
    else if (xml.name() == u"time")
      time = GpxTime(xml.readElementText());
    else
      xml.skipCurrentElement();
  *valid = latOk && lonOk && std::abs(p.latitude) <= 90 && std::abs(p.longitude) <= 180;
  return p;
}

bool ChecksumHolds(const QByteArray& sentence, qsizetype star) {
  unsigned sum = 0;
  for (qsizetype i = 1; i < star; ++i)
    sum ^= static_cast<unsigned char>(sentence[i]);
  bool ok = false;
  return sentence.mid(star + 1, 2).toUInt(&ok, 16) == sum && ok;
}

// "4807.038" with "N": degrees and minutes in one number.
std::optional<double> NmeaDegrees(const QByteArray& number, const QByteArray& hemisphere) {
  bool ok = false;
  const double raw = number.toDouble(&ok);
  if (!ok)
    return std::nullopt;
  const double degrees = std::floor(raw / 100);
  const double value = degrees + (raw - degrees * 100) / 60;
  return hemisphere == "S" || hemisphere == "W" ? -value : value;
}

std::optional<double> NmeaSeconds(const QByteArray& hhmmss) {
  bool ok = false;
  const double raw = hhmmss.toDouble(&ok);
  if (!ok)
    return std::nullopt;
  const int whole = static_cast<int>(raw);
  const int seconds = whole / 10000 * 3600 + whole / 100 % 100 * 60 + whole % 100;
  return seconds + (raw - whole);
}

// What one sentence tells.
struct NmeaFix {
  std::optional<double> time; // seconds since midnight
  double latitude = 0, longitude = 0;
  std::optional<double> height; // GGA alone has one
};

// $GPGGA,123519,4807.038,N,01131.000,E,1,08,0.9,545.4,M,46.9,M,,*47
//   1 time, 2/3 latitude, 4/5 longitude, 6 fix (0 none), 7 satellites, 9 height
// $GPRMC,123519,A,4807.038,N,01131.000,E,022.4,084.4,230394,003.1,W*6A
//   1 time, 2 valid (A), 3/4 latitude, 5/6 longitude
std::optional<NmeaFix> ReadSentence(const QByteArray& sentence) {
  const auto star = sentence.indexOf('*');
  if (!sentence.startsWith('$') || (star > 0 && !ChecksumHolds(sentence, star)))
    return std::nullopt;
  const auto f = sentence.left(star > 0 ? star : sentence.size()).split(',');
  const bool gga = f[0].endsWith("GGA") && f.size() > 9 && f[6] != "0" && !f[6].isEmpty();
  const bool rmc = f[0].endsWith("RMC") && f.size() > 6 && f[2] == "A";
  if (!gga && !rmc)
    return std::nullopt;
  const int at = gga ? 2 : 3;
  const auto latitude = NmeaDegrees(f[at], f[at + 1]), longitude = NmeaDegrees(f[at + 2], f[at + 3]);
  if (!latitude || !longitude)
    return std::nullopt;
  return NmeaFix{NmeaSeconds(f[1]), *latitude, *longitude, gga ? std::optional(f[9].toDouble()) : std::nullopt};
}

TrackPoint Between(const TrackPoint& a, const TrackPoint& b, double part) {
  TrackPoint p = part < 1 ? a : b;
  p.seconds = std::lerp(a.seconds, b.seconds, part);
  p.latitude = std::lerp(a.latitude, b.latitude, part);
  p.longitude = std::lerp(a.longitude, b.longitude, part);
  p.height = std::lerp(a.height, b.height, part);
  p.km = std::lerp(a.km, b.km, part);
  p.timeOfDay = TimeAfter(p.timeOfDay, part < 1 ? p.seconds - a.seconds : 0);
  return p;
}

template <class Member> TrackPoint At(const std::vector<TrackPoint>& points, Member member, double x) {
  const auto next =
      std::upper_bound(points.begin(), points.end(), x, [&](double v, const TrackPoint& p) { return v < p.*member; });
  if (next == points.begin())
    return points.front();
  if (next == points.end())
    return points.back();
  const auto& a = *std::prev(next);
  const double span = *next.*member - a.*member;
  return Between(a, *next, span > 0 ? (x - a.*member) / span : 0);
}

} // namespace

double WayKm(const TrackPoint& a, const TrackPoint& b) {
  constexpr double radius = 6371.0088, degree = 3.14159265358979323846 / 180;
  const double dLat = (b.latitude - a.latitude) * degree, dLon = (b.longitude - a.longitude) * degree;
  const double h = std::pow(std::sin(dLat / 2), 2) +
                   std::cos(a.latitude * degree) * std::cos(b.latitude * degree) * std::pow(std::sin(dLon / 2), 2);
  return 2 * radius * std::asin(std::sqrt(std::min(1.0, h)));
}

bool Track::Read(const QString& path, QString* reason) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    *reason = path + ": " + file.errorString();
    return false;
  }
  return ReadText(file.readAll(), reason);
}

bool Track::ReadText(const QByteArray& bytes, QString* reason) {
  const QByteArray text = bytes.startsWith("\xEF\xBB\xBF") ? bytes.mid(3) : bytes;
  points.clear();
  times.clear();
  note.clear();
  if (text.trimmed().startsWith('<')) {
    if (!ReadGpx(text, reason))
      return false;
  } else {
    ReadNmea(text);
  }
  if (Empty())
    *reason = "fewer than two positions";
  else
    SetTimes();
  return !Empty();
}

bool Track::ReadGpx(const QByteArray& text, QString* reason) {
  QXmlStreamReader xml(text);
  while (!xml.atEnd()) {
    if (xml.readNext() != QXmlStreamReader::StartElement || xml.name() != u"trkpt")
      continue;
    bool valid = false;
    std::optional<double> time;
    const TrackPoint p = GpxPoint(xml, time, &valid);
    if (valid)
      Append(p, time);
  }
  if (xml.hasError())
    *reason = QString("line %1: %2").arg(xml.lineNumber()).arg(xml.errorString());
  return !xml.hasError();
}

// A receiver sends GGA and RMC for one fix, in any order: the second of the same time and place only gives its height.
void Track::ReadNmea(const QByteArray& text) {
  double day = 0, height = 0;
  for (const QByteArray& raw : text.split('\n')) {
    const auto fix = ReadSentence(raw.trimmed());
    if (!fix)
      continue;
    height = fix->height.value_or(height);
    auto time = fix->time;
    if (time && !times.empty() && times.back() && *time + day < *times.back() - Day / 2)
      day += Day; // past midnight; by less it is a clock that goes back
    if (time)
      *time += day;
    if (!points.empty() && time == times.back() && points.back().latitude == fix->latitude &&
        points.back().longitude == fix->longitude)
      points.back().height = height;
    else
      Append({0, fix->latitude, fix->longitude, height, 0, 0}, time);
  }
}

void Track::Append(TrackPoint point, std::optional<double> time) {
  point.km = points.empty() ? 0 : points.back().km + WayKm(points.back(), point);
  points.push_back(point);
  times.push_back(time);
}

void Track::SetTimes() {
  std::vector<bool> known(points.size());
  const std::size_t taken = TakeReadings(known);
  FillTimes(known);
  if (taken == 0)
    note = "the track has no times: it is driven at 60 km/h";
  else if (taken < points.size())
    note = QString("%1 of the track's %2 points have no time or one that does not follow: they are driven by the way "
                   "between their neighbours, and at 60 km/h where no time stands on both sides")
               .arg(points.size() - taken)
               .arg(points.size());
}

// Of a time that does not follow `before`: a single one is skipped. The time after it tells whether the clock was set
// back and runs on.
bool Track::IsStray(std::size_t place, double shift, double before) const {
  const auto next = std::find_if(times.begin() + static_cast<std::ptrdiff_t>(place) + 1, times.end(),
                                 [](const auto& time) { return time.has_value(); });
  return *times[place] + shift == before || (next != times.end() && **next + shift > before);
}

// Converts the times that follow one another to the drive's own clock, and marks the points that have one then.
std::size_t Track::TakeReadings(std::vector<bool>& known) {
  std::size_t taken = 0, last = 0;
  double shift = 0;
  for (std::size_t i = 0; i < points.size(); ++i) {
    if (!times[i])
      continue;
    TrackPoint& p = points[i];
    p.timeOfDay = TimeAfter(*times[i], 0);
    if (taken == 0)
      shift = p.km * SecondsPerKm - *times[i]; // the points before it take its time too
    p.seconds = *times[i] + shift;
    if (taken > 0 && p.seconds <= points[last].seconds) {
      if (IsStray(i, shift, points[last].seconds))
        continue;
      p.seconds = points[last].seconds + (p.km - points[last].km) * SecondsPerKm;
      shift = p.seconds - *times[i];
    } else {
      ++taken;
    }
    known[i] = true;
    last = i;
  }
  return taken;
}

// The times of all other points, in proportion to the way between those that have one.
void Track::FillTimes(const std::vector<bool>& known) {
  const auto next = [&](std::size_t from) {
    return static_cast<std::size_t>(std::find(known.begin() + static_cast<std::ptrdiff_t>(from), known.end(), true) -
                                    known.begin());
  };
  for (std::size_t i = 0, after = next(0); i < points.size(); ++i) {
    TrackPoint& p = points[i];
    if (known[i]) {
      after = next(i + 1);
      continue;
    }
    const bool between = i > 0 && after < points.size();
    const TrackPoint before = i > 0 ? points[i - 1] : TrackPoint{};
    const double rest = between ? points[after].km - before.km : 0;
    const double perKm = rest > 0 ? (points[after].seconds - before.seconds) / rest : SecondsPerKm;
    p.seconds = before.seconds + (p.km - before.km) * perKm;
    if (!times[i])
      p.timeOfDay = i > 0 ? TimeAfter(before.timeOfDay, p.seconds - before.seconds)
                          : TimeAfter(after < points.size() ? points[after].timeOfDay : 0,
                                      after < points.size() ? -points[after].seconds : 0);
  }
}

TrackPoint Track::AtKm(double km) const {
  return At(points, &TrackPoint::km, km);
}

TrackPoint Track::AtSeconds(double seconds) const {
  return At(points, &TrackPoint::seconds, seconds);
}

} // namespace control
