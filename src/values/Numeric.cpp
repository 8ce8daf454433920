#include "values/Numeric.h"

#include "values/NumberText.h"

namespace trekor {

Numeric::Numeric(const UnitSettings& unitSettings) : settings(unitSettings) {}

bool Numeric::Test() const {
  return Lower <= Number && Number <= Upper;
}

double Numeric::Value() const {
  return FromInternal(Number);
}
void Numeric::SetValue(double x) {
  Number = Clamp(ToInternal(x));
}
double Numeric::FileValue() const {
  return InternalToFile(Number);
}
void Numeric::SetFileValue(double x) {
  Number = Clamp(FileToInternal(x));
}

std::string Numeric::Text() const {
  return Number == NaN ? "" : FormatText(Number);
}
std::string Numeric::FixedText() const {
  return Number == NaN ? std::string(6, ' ') : FormatFixed(Number);
}
void Numeric::SetText(std::string_view text) {
  Number = Clamp(ParseText(text));
}
std::string Numeric::FileText() const {
  return Number == NaN ? "" : FormatFile(Number);
}
void Numeric::SetFileText(std::string_view text) {
  Number = Clamp(ParseFile(text));
}

std::string Numeric::MinText() const {
  return Lower == NaN ? "" : FormatText(Lower);
}
void Numeric::SetMinText(std::string_view text) {
  Lower = ParseText(text);
}
std::string Numeric::MaxText() const {
  return Upper == NaN ? "" : FormatText(Upper);
}
void Numeric::SetMaxText(std::string_view text) {
  Upper = ParseText(text);
}

const std::string& Numeric::UserFormat() const {
  return settings.UnitsSI() ? PatternSI : PatternUS;
}
void Numeric::SetUserFormat(std::string pattern) {
  (settings.UnitsSI() ? PatternSI : PatternUS) = std::move(pattern);
}
void Numeric::SetAlternateUnit(bool /*on*/) {} // only MeterFeet has one

// A Numeric without a unit is the same number in all units.
double Numeric::ToInternal(double x) const {
  return x;
}
double Numeric::FileToInternal(double x) const {
  return x;
}
double Numeric::FromInternal(double x) const {
  return x;
}
double Numeric::InternalToFile(double x) const {
  return x;
}

std::string Numeric::FormatText(double number) const {
  return FormatNumber(settings.UnitsSI() ? number : FromInternal(number), UserFormat(), settings.DecimalChar);
}

std::string Numeric::FormatFixed(double number) const {
  return FixedFormat(settings.UnitsSI() ? number : FromInternal(number), UserFormat(), settings.DecimalChar);
}

std::string Numeric::FormatFile(double number) const {
  return settings.FileUnitsSI() ? FileFormat(number, PatternSI) : FileFormat(InternalToFile(number), PatternUS);
}

double Numeric::ParseText(std::string_view text) const {
  return ToInternal(TextToDouble(text));
}
double Numeric::ParseFile(std::string_view text) const {
  return FileToInternal(TextToDouble(text));
}

double Numeric::Clamp(double x) const {
  if (x == NaN)
    return x;
  if (x > Upper) // first, so that the upper limit wins when the two are reversed
    return Upper;
  return x < Lower ? Lower : x;
}

} // namespace trekor
