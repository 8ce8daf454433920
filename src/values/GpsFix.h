// A position fix: what the link brings of it and the data file keeps.
#pragma once

namespace trekor {

struct GpsFix {
  double GpsTime = 0;                       // as the receiver counts it
  double GpsLatitude = 0, GpsLongitude = 0; // degrees, north and east positive; one of them 0: no position
  float GpsHeight = 0;                      // metres
  int GpsStatus = 0;                        // 16 bits; below 1: no fix
  int GpsSVs = 0;                           // satellites, 16 bits
};

} // namespace trekor
