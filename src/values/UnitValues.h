// The four quantities with a unit: internal unit, limits, patterns and conversions differ, all else is Numeric's. They
// are one family for whoever measures; the run so far only holds a Velocity.
#pragma once

#include "values/Numeric.h"

namespace trekor {

// A Numeric whose unit changes by one factor when the settings say US; NaN passes Test and every conversion.
class ScaledNumeric : public Numeric {
public:
  bool Test() const override;

protected:
  // `factor` is how many internal units make one US unit when the internal one is the smaller (25.4 mm to the inch),
  // else how many US units make one internal unit (0.62 miles to the kilometre). Never its reciprocal, so that a
  // conversion is one multiplication or one division and its digits are those of the exact factor.
  ScaledNumeric(const UnitSettings& settings, double factor, bool internalIsSmaller);
  double Scale(double internal) const;
  double Unscale(double outside) const;

private:
  double ToInternal(double x) const override;
  double FileToInternal(double x) const override;
  double FromInternal(double x) const override;
  double InternalToFile(double x) const override;
  double factor;
  bool internalIsSmaller;
};

// Millimetres, inches when US. -999.9 to 9999.9.
class Deflection : public ScaledNumeric {
public:
  explicit Deflection(const UnitSettings& settings);
};

// Millimetres, inches when US. -99999 to 999999.
class Length : public ScaledNumeric {
public:
  explicit Length(const UnitSettings& settings);
};

// km/h, miles an hour when US. -200 to 200.
class Velocity : public ScaledNumeric {
public:
  explicit Velocity(const UnitSettings& settings);
};

// Metres, feet when US; with the alternate unit millimetres and inches on the user's side only. -99999 to 999999.
class MeterFeet : public ScaledNumeric {
public:
  explicit MeterFeet(const UnitSettings& settings);
  bool AlternateUnit() const override { return UseAlternate; }
  void SetAlternateUnit(bool on) override { UseAlternate = on; }

private:
  std::string FormatText(double number) const override;
  std::string FormatFixed(double number) const override;
  double ParseText(std::string_view text) const override;
  double AlternateNumber(double number) const; // millimetres or inches
  bool UseAlternate = false;
};

} // namespace trekor
