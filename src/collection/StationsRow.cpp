#include "collection/StationsRow.h"

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

void Append(std::string& text, int number, int width, char mark) {
  const auto digits = std::to_string(number);
  text.append(static_cast<std::size_t>(width) - std::min<std::size_t>(digits.size(), static_cast<std::size_t>(width)),
              '0');
  text += digits;
  if (mark != 0)
    text += mark;
}

std::string TimeText(const LocalTime& t) {
  std::string text;
  Append(text, t.year, 4, '-');
  Append(text, t.month, 2, '-');
  Append(text, t.day, 2, ' ');
  Append(text, t.hour, 2, ':');
  Append(text, t.minute, 2, ':');
  Append(text, t.second, 2, 0);
  return text;
}

} // namespace

void Write_Fix(Grid& stations, int row, const LocalTime& time, const GpsFix& gps) {
  if (row < stations.FixedRows() || row >= stations.Rows())
    return;
  stations.SetText(row, ColTime, TimeText(time));
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

LocalTime CellTime(const std::string& cell) {
  LocalTime t;
  int* const parts[] = {&t.year, &t.month, &t.day, &t.hour, &t.minute, &t.second};
  const char* at = cell.data();
  const char* const end = at + cell.size();
  for (int* part : parts) {
    at = std::from_chars(at, end, *part).ptr;
    if (at != end)
      ++at;
  }
  return t;
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
