// Both formats end in the same list of points; way and relative time are worked out once, on appending.
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

double ClockOf(const QTime& time) {
  return time.hour() * 10000 + time.minute() * 100 + time.second() + time.msec() / 1000.0;
}

// A point whose `seconds` is still the absolute time.
TrackPoint GpxPoint(QXmlStreamReader& xml, bool* valid) {
  TrackPoint p;
  bool latOk = false, lonOk = false;
  p.latitude = xml.attributes().value("lat").toDouble(&latOk);
  p.longitude = xml.attributes().value("lon").toDouble(&lonOk);
  while (xml.readNextStartElement()) {
    if (xml.name() == u"ele") {
      p.height = xml.readElementText().toDouble();
    } else if (xml.name() == u"time") {
      const auto time = QDateTime::fromString(xml.readElementText().trimmed(), Qt::ISODateWithMs).toUTC();
      if (time.isValid()) {
        p.seconds = static_cast<double>(time.toMSecsSinceEpoch()) / 1000.0;
        p.clock = ClockOf(time.time());
      }
    } else {
      xml.skipCurrentElement();
    }
  }
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

double NmeaSeconds(const QByteArray& hhmmss) {
  const double raw = hhmmss.toDouble();
  const int whole = static_cast<int>(raw);
  return whole / 10000 * 3600 + whole / 100 % 100 * 60 + whole % 100 + (raw - whole);
}

TrackPoint Between(const TrackPoint& a, const TrackPoint& b, double part) {
  TrackPoint p = part < 0.5 ? a : b; // the clock is a reading, not a quantity: it is not interpolated
  p.seconds = std::lerp(a.seconds, b.seconds, part);
  p.latitude = std::lerp(a.latitude, b.latitude, part);
  p.longitude = std::lerp(a.longitude, b.longitude, part);
  p.height = std::lerp(a.height, b.height, part);
  p.km = std::lerp(a.km, b.km, part);
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

bool Track::ReadText(const QByteArray& text, QString* reason) {
  points.clear();
  if (text.trimmed().startsWith('<')) {
    if (!ReadGpx(text, reason))
      return false;
  } else {
    ReadNmea(text);
  }
  if (Empty())
    *reason = "fewer than two positions";
  return !Empty();
}

bool Track::ReadGpx(const QByteArray& text, QString* reason) {
  QXmlStreamReader xml(text);
  double first = 0;
  while (!xml.atEnd()) {
    if (xml.readNext() != QXmlStreamReader::StartElement || xml.name() != u"trkpt")
      continue;
    bool valid = false;
    TrackPoint p = GpxPoint(xml, &valid);
    if (!valid)
      continue;
    if (points.empty())
      first = p.seconds;
    p.seconds = std::max(0.0, p.seconds - first);
    Append(p);
  }
  if (xml.hasError())
    *reason = QString("line %1: %2").arg(xml.lineNumber()).arg(xml.errorString());
  return !xml.hasError();
}

// $GPGGA,123519,4807.038,N,01131.000,E,1,08,0.9,545.4,M,46.9,M,,*47
//   1 time, 2/3 latitude, 4/5 longitude, 6 fix (0 none), 7 satellites, 9 height
// $GPRMC,123519,A,4807.038,N,01131.000,E,022.4,084.4,230394,003.1,W*6A
//   1 time, 2 valid (A), 3/4 latitude, 5/6 longitude
// A receiver sends both for one fix: the second of the same time is passed over.
void Track::ReadNmea(const QByteArray& text) {
  std::optional<double> first;
  double day = 0, last = -1;
  double height = 0;
  for (const QByteArray& raw : text.split('\n')) {
    const QByteArray sentence = raw.trimmed();
    const auto star = sentence.indexOf('*');
    if (!sentence.startsWith('$') || (star > 0 && !ChecksumHolds(sentence, star)))
      continue;
    const auto f = sentence.left(star > 0 ? star : sentence.size()).split(',');
    const bool gga = f[0].endsWith("GGA") && f.size() > 9 && f[6] != "0" && !f[6].isEmpty();
    const bool rmc = f[0].endsWith("RMC") && f.size() > 6 && f[2] == "A";
    if (!gga && !rmc)
      continue;
    const int at = gga ? 2 : 3;
    const auto latitude = NmeaDegrees(f[at], f[at + 1]), longitude = NmeaDegrees(f[at + 2], f[at + 3]);
    const double seconds = NmeaSeconds(f[1]);
    if (!latitude || !longitude || seconds == last)
      continue;
    if (gga)
      height = f[9].toDouble();
    if (seconds < last)
      day += 86400; // past midnight
    last = seconds;
    first = first.value_or(seconds);
    Append({day + seconds - *first, *latitude, *longitude, height, 0, f[1].toDouble()});
  }
}

void Track::Append(TrackPoint point) {
  if (!points.empty()) {
    point.seconds = std::max(point.seconds, points.back().seconds); // a clock that jumps back stands still here
    point.km = points.back().km + WayKm(points.back(), point);
  }
  points.push_back(point);
}

TrackPoint Track::AtKm(double km) const {
  return At(points, &TrackPoint::km, km);
}

TrackPoint Track::AtSeconds(double seconds) const {
  return At(points, &TrackPoint::seconds, seconds);
}

} // namespace control
