#include "values/UnitValues.h"

#include "values/DistanceUnits.h"
#include "values/NumberText.h"

namespace trekor {

constexpr double MillimetresPerInch = 25.4;
constexpr double MetresPerFoot = 0.3048;

ScaledNumeric::ScaledNumeric(const UnitSettings& settings, double perUnit, bool smaller)
    : Numeric(settings), factor(perUnit), internalIsSmaller(smaller) {}

bool ScaledNumeric::Test() const {
  return Number == NaN || Numeric::Test();
}

double ScaledNumeric::Scale(double internal) const {
  if (internal == NaN)
    return internal;
  return internalIsSmaller ? internal / factor : internal * factor;
}

double ScaledNumeric::Unscale(double outside) const {
  if (outside == NaN)
    return outside;
  return internalIsSmaller ? outside * factor : outside / factor;
}

double ScaledNumeric::ToInternal(double x) const {
  return Settings().UnitsUS ? Unscale(x) : x;
}
double ScaledNumeric::FileToInternal(double x) const {
  return Settings().FileUnitsUS ? Unscale(x) : x;
}
double ScaledNumeric::FromInternal(double x) const {
  return Settings().UnitsUS ? Scale(x) : x;
}
double ScaledNumeric::InternalToFile(double x) const {
  return Settings().FileUnitsUS ? Scale(x) : x;
}

Deflection::Deflection(const UnitSettings& settings) : ScaledNumeric(settings, MillimetresPerInch, true) {
  Lower = -999.9;
  Upper = 9999.9;
  PatternSI = "###0.0";
  PatternUS = "##0.00";
}

Length::Length(const UnitSettings& settings) : ScaledNumeric(settings, MillimetresPerInch, true) {
  Lower = -99999;
  Upper = 999999;
}

Velocity::Velocity(const UnitSettings& settings) : ScaledNumeric(settings, MilesPerKm, false) {
  Lower = -200;
  Upper = 200;
  PatternSI = PatternUS = "###0.0";
}

MeterFeet::MeterFeet(const UnitSettings& settings) : ScaledNumeric(settings, MetresPerFoot, true) {
  Lower = -99999;
  Upper = 999999;
}

double MeterFeet::AlternateNumber(double number) const {
  return Settings().UnitsUS ? Scale(number) * 12 : number * 1000;
}

std::string MeterFeet::FormatText(double number) const {
  return UseAlternate ? FormatNumber(AlternateNumber(number), "0") : Numeric::FormatText(number);
}

std::string MeterFeet::FormatFixed(double number) const {
  return UseAlternate ? FixedFormat(AlternateNumber(number), "#####0") : Numeric::FormatFixed(number);
}

double MeterFeet::ParseText(std::string_view text) const {
  const double number = TextToDouble(text);
  if (!UseAlternate || number == NaN)
    return Numeric::ParseText(text);
  return Settings().UnitsUS ? Unscale(number / 12) : number / 1000;
}

} // namespace trekor
