// A value object: one number in a fixed internal unit with limits and patterns, read and written raw, in the user's
// units and in the file's units. Numeric itself has no unit; Deflection, Length, Velocity, MeterFeet (UnitValues.h) and
// Station add theirs by overriding the private conversions. "No value" is the number NaN of NumberText.h. The settings
// are borrowed and must outlive the object; they are read at each call.
#pragma once

#include "values/UnitSettings.h"

#include <string>
#include <string_view>

namespace trekor {

class Numeric {
public:
  explicit Numeric(const UnitSettings& settings);
  virtual ~Numeric() = default;

  // Raw: internal unit, not limited. Positions of the link come in here.
  double Default() const { return Number; }
  void SetDefault(double x) { Number = x; }
  // True when the number lies within the limits; in the unit classes also when it is NaN.
  virtual bool Test() const;
  // Value is in the user's units, FileValue in the file's. Setting brings a number beyond the limits to the nearer one;
  // NaN stays NaN.
  double Value() const;
  void SetValue(double x);
  double FileValue() const;
  void SetFileValue(double x);
  // Text in the user's units, "" for NaN. FixedText is right-aligned to the width of its pattern; six blanks for NaN.
  std::string Text() const;
  virtual std::string FixedText() const;
  void SetText(std::string_view text);
  // Text in the file's units, "." as decimal mark whatever the locale. Only Station's is read; setting completes the
  // three dialects.
  std::string FileText() const;
  void SetFileText(std::string_view text);
  // Limits and patterns can be read and set alike, as a value object offers it for every quantity; the classes below
  // set theirs once, so that some of these have no caller.
  double Min() const { return Lower; }
  void SetMin(double x) { Lower = x; }
  std::string MinText() const;
  void SetMinText(std::string_view text);
  double Max() const { return Upper; }
  void SetMax(double x) { Upper = x; }
  std::string MaxText() const;
  void SetMaxText(std::string_view text);
  const std::string& SIFormat() const { return PatternSI; }
  void SetSIFormat(std::string pattern) { PatternSI = std::move(pattern); }
  const std::string& USFormat() const { return PatternUS; }
  void SetUSFormat(std::string pattern) { PatternUS = std::move(pattern); }
  // The pattern of the units in use, SI or US.
  const std::string& UserFormat() const;
  void SetUserFormat(std::string pattern);
  virtual bool AlternateUnit() const { return false; }
  virtual void SetAlternateUnit(bool on);

protected:
  const UnitSettings& Settings() const { return settings; }
  double Number = 0, Lower = 0, Upper = 10000;
  std::string PatternSI = "#####0", PatternUS = "##0.00";

  // In the internal unit. An override calls these for its ordinary case.
  virtual std::string FormatText(double number) const;
  virtual std::string FormatFixed(double number) const;
  virtual double ParseText(std::string_view text) const;

private:
  virtual double ToInternal(double x) const;
  virtual double FileToInternal(double x) const;
  virtual double FromInternal(double x) const;
  virtual double InternalToFile(double x) const;
  virtual std::string FormatFile(double number) const;
  virtual double ParseFile(std::string_view text) const;
  double Clamp(double x) const;

  const UnitSettings& settings;
};

} // namespace trekor
