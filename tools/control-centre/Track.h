// A recorded track: where the vehicle was and when, read from a GPX or an NMEA file, and the way in between.
#pragma once

#include <QString>
#include <string>
#include <vector>

namespace control {

struct TrackPoint {
  double seconds = 0;                 // since the track's first point; 0 throughout when the file has no times
  double latitude = 0, longitude = 0; // degrees, north and east positive
  double height = 0;                  // metres
  double km = 0;                      // way along the track so far
  double clock = 0;                   // time of day as hhmmss, UTC
};

class Track {
public:
  // Reads by content: XML is taken as GPX (trkpt, of all tracks and segments in order), lines with "$" as NMEA (GGA and
  // RMC of any talker, checksum verified when present). Points without a valid position are passed over. False with a
  // reason when the file cannot be read or holds fewer than two points.
  bool Read(const QString& path, QString* reason);
  bool ReadText(const QByteArray& text, QString* reason);
  const std::vector<TrackPoint>& Points() const { return points; }
  bool Empty() const { return points.size() < 2; }
  double LengthKm() const { return Empty() ? 0 : points.back().km; }
  double Seconds() const { return Empty() ? 0 : points.back().seconds; }
  bool HasTimes() const { return Seconds() > 0; }

  // The position at a way or at a time, between the points on a straight line; the ends beyond the ends.
  TrackPoint AtKm(double km) const;
  TrackPoint AtSeconds(double seconds) const;

private:
  void Append(TrackPoint point);
  bool ReadGpx(const QByteArray& text, QString* reason);
  void ReadNmea(const QByteArray& text);
  std::vector<TrackPoint> points;
};

// The great-circle way between two positions in kilometres (mean earth radius 6371.0088 km).
double WayKm(const TrackPoint& a, const TrackPoint& b);

} // namespace control
