// A position along the road: kilometres inside, nine units outside (units::Code). The two station units
// have plus notation ("12+34.5"); mile.feet holds miles and feet in one number ("12.3456": 12 miles, 3456 feet).
#pragma once

#include "values/Numeric.h"

namespace trekor {

class Station : public Numeric {
public:
  explicit Station(const UnitSettings& settings);
  bool Test() const override;
  std::string FixedText() const override; // eight blanks for NaN
  std::string ShownUnit() const;          // the word of Text's unit
  // The number that FileText shows: file units, with the digits that a file keeps of it.
  double FiledValue() const;
  // NaN stays NaN; an unknown unit code gives 0.
  static double StationToKm(double value, int unit);
  static double KmToStation(double km, int unit);

private:
  double ToInternal(double x) const override;
  double FileToInternal(double x) const override;
  double FromInternal(double x) const override;
  double InternalToFile(double x) const override;
  std::string FormatText(double number) const override;
  std::string FormatFixed(double number) const override;
  std::string FormatFile(double number) const override;
  double ParseText(std::string_view text) const override;
  double ParseFile(std::string_view text) const override;

  const std::string* PatternOf(int unit) const; // nothing for a code that is no unit
  std::string Fixed(double x, int unit, char decimal) const;

  // Fixed, unlike the two of Numeric. A metre station always has five whole digits: 1234.5 m is "012+34.5" in Text.
  std::string PatternInch = "#######0", PatternMileFeet = "##0.0000", PatternStnFeet = "##000.0",
              PatternStnMeter = "00000.0";
};

// Removes the first inner "+" of a station text or, failing that, the first inner "-": "12+34.5" gives "1234.5".
std::string StationDigits(std::string_view text);

} // namespace trekor
