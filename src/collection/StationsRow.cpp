#include "collection/StationsRow.h"

#include "state/DateText.h"

#include <array>
#include <charconv>

namespace trekor {

namespace {

template <class Number> std::string Digits(Number n) {
  std::array<char, 40> buffer{};
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), n).ptr;
  return {buffer.data(), end};
}

template <class Number> Number Read(const std::string& cell) {
  Number n{};
  std::from_chars(cell.data(), cell.data() + cell.size(), n);
  return n;
}

} // namespace

void Write_Fix(Grid& stations, int row, const LocalTime& time, const GpsFix& gps) {
  if (row < stations.FixedRows() || row >= stations.Rows())
    return;
  stations.SetText(row, ColTime, DateText(time));
  stations.SetText(row, ColGpsStatus, Digits(gps.GpsStatus));
  stations.SetText(row, ColGpsTime, Digits(gps.GpsTime));
  stations.SetText(row, ColLatitude, Digits(gps.GpsLatitude));
  stations.SetText(row, ColLongitude, Digits(gps.GpsLongitude));
  stations.SetText(row, ColHeight, Digits(gps.GpsHeight));
  stations.SetText(row, ColGpsSVs, Digits(gps.GpsSVs));
}

int RowKind(const Grid& stations, int row) {
  return CellInteger(stations.Text(row, ColRowKind));
}

double CellDouble(const std::string& cell) {
  return Read<double>(cell);
}

float CellFloat(const std::string& cell) {
  return Read<float>(cell);
}

int CellInteger(const std::string& cell) {
  return Read<int>(cell);
}

} // namespace trekor
