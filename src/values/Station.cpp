#include "values/Station.h"

#include "values/DistanceUnits.h"
#include "values/NumberText.h"
#include "values/Text.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace trekor {
namespace {

constexpr double FeetPerMile = 5280, YardsPerMile = 1760, InchesPerFoot = 12;

// How many of a unit make one kilometre, as factors that are applied from left to right, in both directions: another
// order, or their product, changes the last digits, which data files hold.
using Factors = std::array<double, 3>;
constexpr std::array<Factors, 9> UnitsPerKm{{
    {1, 1, 1},
    {1000, 1, 1},
    {MilesPerKm, 1, 1},
    {}, // miles and feet are no multiple
    {FeetPerMile, MilesPerKm, 1},
    {YardsPerMile, MilesPerKm, 1},
    {FeetPerMile, InchesPerFoot, MilesPerKm},
    {FeetPerMile, MilesPerKm, 1},
    {1000, 1, 1},
}};

const Factors* FactorsOf(int unit) {
  return unit >= units::Km && unit <= units::StnMetre ? &UnitsPerKm[static_cast<std::size_t>(unit)] : nullptr;
}

// 12.3456 is 12 miles and 3456 feet.
double MileFeetToKm(double v) {
  const double whole = std::trunc(v);
  const double km = std::abs(whole) / MilesPerKm + std::abs(v - whole) * 10000 / FeetPerMile / MilesPerKm;
  return v == 0 ? 0 : std::copysign(km, v);
}

// Rounded to a whole foot, so that 5279.6 feet become the next mile and never "5280 feet".
double KmToMileFeet(double v) {
  const double feet = std::floor(std::abs(v) * MilesPerKm * FeetPerMile + 0.5);
  const double number = std::fmod(feet, FeetPerMile) / 10000 + std::floor(feet / FeetPerMile);
  return v == 0 ? 0 : std::copysign(number, v);
}

// "1234.5" as people read it, the digits behind the mark kept together: "12+34.5", "-12-34.5".
std::string PlusNotation(std::string text) {
  const std::size_t minus = text.find('-');
  const bool negative = minus != std::string::npos;
  if (negative)
    text.erase(0, minus + 1);
  text.insert(text.size() - std::min<std::size_t>(text.size(), 4), 1, negative ? '-' : '+');
  return negative ? '-' + text : text;
}

// The same in a fixed width: a minus sign stays where the pattern has put it.
std::string MarkFixed(std::string text, std::size_t fromEnd) {
  const char mark = text.find('-') == std::string::npos ? '+' : '-';
  const std::size_t at = text.size() < fromEnd ? 0 : text.size() - fromEnd;
  return text.insert(at, 1, mark);
}

// Where a mark stands inside the trimmed text. A mark at the very start is a sign, and so is the same mark directly
// behind it.
std::size_t InnerMark(std::string_view text, char mark) {
  const std::size_t at = text.find(mark);
  return at == 0 ? text.find(mark, 2) : at;
}

double NumberOf(std::string_view text) {
  return TextToDouble(StationDigits(TrimView(text)));
}

} // namespace

std::string Station::ShownUnit() const {
  return UnitName(Settings().StationUnit);
}

Station::Station(const UnitSettings& settings) : Numeric(settings) {
  Lower = -1000;
  Upper = 10000;
  PatternSI = "###0.000";
  PatternUS = "#####0.0";
}

bool Station::Test() const {
  return Number == NaN || Numeric::Test();
}

std::string Station::FixedText() const {
  return Number == NaN ? std::string(8, ' ') : FormatFixed(Number);
}

double Station::FiledValue() const {
  return NumberOf(FileText());
}

double Station::StationToKm(double v, int unit) {
  if (v == NaN)
    return v;
  if (unit == units::MileFeet)
    return MileFeetToKm(v);
  const Factors* factors = FactorsOf(unit);
  return factors ? v / (*factors)[0] / (*factors)[1] / (*factors)[2] : 0;
}

double Station::KmToStation(double v, int unit) {
  if (v == NaN)
    return v;
  if (unit == units::MileFeet)
    return KmToMileFeet(v);
  const Factors* factors = FactorsOf(unit);
  return factors ? v * (*factors)[0] * (*factors)[1] * (*factors)[2] : 0;
}

double Station::ToInternal(double x) const {
  return StationToKm(x, Settings().StationUnit);
}
double Station::FileToInternal(double x) const {
  return StationToKm(x, Settings().FileStationUnit);
}
double Station::FromInternal(double x) const {
  return KmToStation(x, Settings().StationUnit);
}
double Station::InternalToFile(double x) const {
  return KmToStation(x, Settings().FileStationUnit);
}

const std::string* Station::PatternOf(int unit) const {
  switch (unit) {
  case units::Km:
  case units::Mile:
    return &PatternSI;
  case units::Metre:
  case units::Feet:
  case units::Yards:
  case units::Inch:
    return &PatternUS;
  case units::MileFeet:
    return &PatternMileFeet;
  case units::StnFeet:
    return &PatternStnFeet;
  case units::StnMetre:
    return &PatternStnMeter;
  default:
    return nullptr;
  }
}

std::string Station::FormatText(double number) const {
  const int unit = Settings().StationUnit;
  const std::string* const pattern =
      unit == units::Inch ? &PatternInch : PatternOf(unit); // whole inches in this text only
  if (!pattern)
    return "";
  std::string text = FormatNumber(FromInternal(number), *pattern, Settings().DecimalChar);
  return unit == units::StnFeet || unit == units::StnMetre ? PlusNotation(std::move(text)) : text;
}

std::string Station::Fixed(double x, int unit, char decimal) const {
  const std::string* const pattern = PatternOf(unit);
  if (!pattern)
    return "";
  std::string text = FixedFormat(x, *pattern, decimal);
  if (unit == units::StnFeet)
    return MarkFixed(std::move(text), 4);
  // The mark of a metre station splits thousands here ("01+234.5") and hundreds in Text ("012+34.5"). Kept as it is:
  // texts of both forms exist, and StationDigits reads either.
  return unit == units::StnMetre ? MarkFixed(std::move(text), 5) : text;
}

std::string Station::FormatFixed(double number) const {
  return Fixed(FromInternal(number), Settings().StationUnit, Settings().DecimalChar);
}

std::string Station::FormatFile(double number) const {
  return Fixed(InternalToFile(number), Settings().FileStationUnit, '.');
}

double Station::ParseText(std::string_view text) const {
  return ToInternal(NumberOf(text));
}

double Station::ParseFile(std::string_view text) const {
  return FileToInternal(NumberOf(text));
}

std::string StationDigits(std::string_view text) {
  const std::string_view trimmed = TrimView(text);
  for (const char mark : {'+', '-'})
    if (const std::size_t at = InnerMark(trimmed, mark); at != std::string_view::npos)
      return std::string(trimmed).erase(at, 1);
  return std::string(text); // as it came, not trimmed
}

} // namespace trekor
