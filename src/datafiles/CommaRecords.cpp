#include "datafiles/CommaRecords.h"

#include "values/Text.h"

#include <algorithm>

namespace trekor {
namespace {

// As a 16-bit integer; 0 when the text is no number or too large for one.
int Integer16(std::string_view text) {
  return IsNumeric(text) ? ToInteger16(TextToDouble(text)).value_or(0) : 0;
}

bool IsOneDigit(std::string_view text) {
  return text.size() == 1 && text[0] >= '0' && text[0] <= '9';
}

} // namespace

int PointDigit(std::string_view regData) {
  return IsOneDigit(regData) ? regData[0] - '0' : std::clamp(Integer16(regData), 0, 9);
}

int SegmentDigit(std::string_view regData) {
  if (IsOneDigit(regData))
    return regData[0] - '0';
  const int number = Integer16(regData);
  const std::string_view text = TrimView(regData);
  if (number == 0 && !text.empty() && text != "0")
    return 1;
  return std::clamp(number, 0, 9);
}

void CommaTable::Hold(std::size_t place) {
  if (place < ObsCodes.size())
    return;
  ObsCodes.resize(place + 1);
  ObsNames.resize(place + 1);
  ObsValues.resize(place + 1);
}

CommaRecords::CommaRecords(CommaOutput& output, CommaTable& observations, const CommaSources& commaSources)
    : out(output), table(observations), sources(commaSources), scale(commaSources.units),
      StationFormat(FileStationPattern(commaSources.units.FileStationUnit)) {}

void CommaRecords::StationField(double km) {
  scale.SetDefault(km);
  out.Fixed(scale.FileValue(), StationFormat);
}

// 5280,0,120345, 55.6760968,  12.5683371,  12.5,4, 9,    ,
// no fix 1 (else 0), time, latitude, longitude, height, status, satellites, two columns that stay empty
void CommaRecords::WriteGpsRecord(const GpsFix& fix) {
  if (fix.GpsLatitude == 0 || fix.GpsLongitude == 0)
    return;
  out.Raw("5280,").Fixed(fix.GpsStatus < 1 ? 1 : 0, digit).Comma().Fixed(fix.GpsTime, gpsTime).Comma();
  out.Fixed(fix.GpsLatitude, latitude).Comma().Fixed(fix.GpsLongitude, longitude).Comma();
  out.Fixed(double{fix.GpsHeight}, height).Comma().Fixed(fix.GpsStatus, digit).Comma().Fixed(fix.GpsSVs, satellites);
  out.Raw(",    ,   ").End();
}

// 5311,  12.345, 17,1,"1"
// station, observation code, value as a digit, value as text
bool CommaRecords::WritePointRecord(const Cursor& registration, const CommaPosition& here) {
  const std::int64_t obsCode = registration.Integer(RegObsCode);
  const std::string_view regData = registration.TextView(RegRegData);
  std::size_t i = 0;
  std::int64_t value = registration.Integer(RegParCode); // of an entry without observation, as it stands
  if (obsCode != 0) {
    const auto first = table.ObsCodes.begin() + 1, last = first + table.CommaObsCount;
    const auto found = std::find(first, last, obsCode);
    if (found == last)
      return false; // not even its position is written
    i = static_cast<std::size_t>(found - table.ObsCodes.begin());
    value = PointDigit(regData);
  }
  WriteGpsRecord(here.fix);
  out.Raw("5311,");
  StationField(here.km);
  out.Comma().Fixed(table.ObsCodes[i], code).Comma().Whole(value).Comma().Quoted(regData).End();
  return true;
}

// 5301,  12.300,  12.400,0,3,0,0,1,0,0,0,0,0,0,0,0,0,0,0
// from, to, a digit for each observation, at least 16 of them; the position of the start goes first in a 5280
void CommaRecords::WriteSegmentRecord(const CommaPosition& from, const CommaPosition& to) {
  WriteGpsRecord(from.fix);
  out.Raw("5301,");
  StationField(from.km);
  out.Comma();
  StationField(to.km);
  for (int i = 1; i <= std::max(table.CommaObsCount, 16); ++i)
    out.Comma().Digit(i <= table.CommaObsCount ? table.ObsValues[static_cast<std::size_t>(i)] : 0);
  out.End();
}

void CommaRecords::WriteLastRecord() {
  out.Raw("5319,     0.0").End();
}

} // namespace trekor
