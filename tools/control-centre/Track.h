// A recorded track: where the vehicle was and when, read from a GPX or an NMEA file, and the way in between.
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
  double km = 0;                      // way along the track so far
  double timeOfDay = 0;               // seconds since midnight UTC, as the receiver said
};

// Files from the field have points without times, tracks one behind the other in any order, clocks that stand or are
// set back. A point whose time is missing or no later than one before it gets one by the way between its neighbours;
// where no time stands on both sides the way is driven at 60 km/h. A clock that was set back and runs on counts on from
// there.
class Track {
public:
  // Reads by content, a byte order mark is passed over: XML is taken as GPX (trkpt, of all tracks and segments in
  // order), lines with "$" as NMEA (GGA and RMC of any talker, checksum verified when present). Points without a valid
  // position are passed over. False with a reason when the file cannot be read or holds fewer than two points.
  bool Read(const QString& path, QString* reason);
  bool ReadText(const QByteArray& text, QString* reason);
  const std::vector<TrackPoint>& Points() const { return points; }
  bool Empty() const { return points.size() < 2; }
  double LengthKm() const { return Empty() ? 0 : points.back().km; }
  double Seconds() const { return Empty() ? 0 : points.back().seconds; }
  // One line for the user about times that were missing; empty when none were.
  QString Note() const { return note; }

  // The position at a way or at a time, between the points on a straight line; the ends beyond the ends.
  TrackPoint AtKm(double km) const;
  TrackPoint AtSeconds(double seconds) const;

private:
  bool ReadGpx(const QByteArray& text, QString* reason);
  void ReadNmea(const QByteArray& text);
  void Append(TrackPoint point, std::optional<double> time);
  void SetTimes();
  std::size_t TakeReadings(std::vector<bool>& known);
  void FillTimes(const std::vector<bool>& known);
  std::vector<TrackPoint> points;
  std::vector<std::optional<double>> times; // of each point as it was read: seconds on one clock of any beginning
  QString note;
};

// The great-circle way between two positions in kilometres (mean earth radius 6371.0088 km).
double WayKm(const TrackPoint& a, const TrackPoint& b);

} // namespace control
