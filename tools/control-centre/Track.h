// A recorded track, from a GPX or an NMEA file: where the vehicle was and when, and positions in between.
#pragma once

#include <QString>
#include <optional>
#include <string>
#include <vector>

namespace control {

struct TrackPoint {
  double seconds = 0;                 // since the track's first point; never falls from point to point
  double latitude = 0, longitude = 0; // degrees, north and east positive
  double height = 0;                  // metres
  double km = 0;                      // along the track from its first point
  double timeOfDay = 0;               // seconds since midnight UTC, as the receiver said
};

// Files from the field have points without times, tracks in the wrong order, and clocks that stand still or are set
// back. A point whose time is missing or not later than the one before gets a time in proportion to the way between its
// neighbours; where there is no time on both sides, the way is driven at 60 km/h. A clock that was set back and runs on
// is continued from there.
class Track {
public:
  // Tells the format by the content, after any byte order mark: XML is GPX (trkpt, of all tracks and segments in
  // order), lines with "$" are NMEA (GGA and RMC of any talker, checksum verified when present). Points without a valid
  // position are skipped. False with a reason when the file can't be read or has fewer than two points.
  bool Read(const QString& path, QString* reason);
  bool ReadText(const QByteArray& text, QString* reason);
  const std::vector<TrackPoint>& Points() const { return points; }
  bool Empty() const { return points.size() < 2; }
  double Seconds() const { return Empty() ? 0 : points.back().seconds; }
  // One line for the user about times that were missing; empty when none were.
  QString Note() const { return note; }

  // The position after a distance or a time, between the points on a straight line; the first or last point beyond the
  // ends.
  TrackPoint AtKm(double km) const;
  TrackPoint AtSeconds(double seconds) const;

private:
  bool ReadGpx(const QByteArray& text, QString* reason);
  void ReadNmea(const QByteArray& text);
  void Append(TrackPoint point, std::optional<double> time);
  void SetTimes();
  bool IsStray(std::size_t place, double shift, double before) const;
  std::size_t TakeReadings(std::vector<bool>& known);
  void FillTimes(const std::vector<bool>& known);
  std::vector<TrackPoint> points;
  std::vector<std::optional<double>> times; // of each point as read: seconds of one clock with any zero
  QString note;
};

// The great-circle distance of two positions in kilometres (mean earth radius 6371.0088 km).
double WayKm(const TrackPoint& a, const TrackPoint& b);

} // namespace control
