// One observation of the running setup: its value, limits, modes, key and names. Values change only through this class.
#pragma once

#include "forms/Controls.h"
#include "setup/ObservationCodes.h"

#include <cstdint>
#include <string>
#include <variant>

namespace trekor {

// A text, a whole number, or a real number of double or single precision. The limits come from the vocabulary as
// singles, and a value brought to a limit is that single: it equals the limit exactly and its text is "0.1", not
// "0.100000001".
using ObsValue = std::variant<std::string, std::int32_t, double, float>;
// As cells, files and prompts show it: "." as mark whatever the locale, at most 15 digits, 7 for a single.
std::string ObsValueText(const ObsValue& value);
double ObsValueNumber(const ObsValue& value); // a text reads as its leading number

class TestSetup;

class ClassObservation {
public:
  // `pictures` is searched by ObsIcon, `setup` by the duplicate test of SetKeyCode. Both outlive the object.
  ClassObservation(const ImageList& pictures, const TestSetup& setup);

  // Adds 1; at Max it goes to Min. The comparison with Max is exact: a value off the whole steps from Min never wraps.
  void IncValue();
  // Back to Min; a text stays.
  void Reset();
  // The smaller and the larger of the two stored limits; 0 and 1 for a Boolean, whatever is stored.
  double Min() const { return ObsValueNumber(Lowest()); }
  double Max() const { return ObsValueNumber(Highest()); }
  void SetMin(ObsValue v) { storedMin = std::move(v); }
  void SetMax(ObsValue v) { storedMax = std::move(v); }
  const ObsValue& Default() const { return present; }
  // Takes a value from outside: read as text, then as a number, brought within the limits and to the type of the item.
  // Narrower widths (16 bits, a single) are for the caller to apply first.
  void SetDefault(const ObsValue& v);
  std::string DefaultText() const { return ObsValueText(present); }
  double DefaultNumber() const { return ObsValueNumber(present); }

  std::string DispText() const; // what the value is, "millimetres"; for prompts and editors, no cell shows it
  std::string FileText() const;
  void SetDispText(std::string t) { dispText = std::move(t); }
  void SetFileText(std::string t) { fileText = std::move(t); }
  RegMode RegModeCode = RegMode::PresentStep;
  Keying KeyingCode{}; // as the database has it
  DataType DataTypeID = DataType::Boolean;
  std::int32_t ObsParID = 0;
  int KeyCode() const { return keyCode; }
  bool MayTakeKey(int code) const; // a key that is valid and no other observation's
  void SetKeyCode(int code);       // -1 when the key is invalid or another observation holds it
  int Shift = -1;                  // stored only
  int ObsCode = 0;
  std::string ObsNameDisp() const, ObsNameFile() const, ObsAbrvDisp() const, ObsAbrvFile() const, ObsIcon() const;
  void SetObsNames(std::string nameDisp, std::string nameFile, std::string abrvDisp, std::string abrvFile);
  void SetObsIcon(std::string key) { obsIcon = std::move(key); }
  // Constants, whatever the database holds: the program shows no parameters, and data files rely on these values.
  // SetPar keeps what the vocabulary holds of them, a second level of observations that is still unused.
  int ParCode() const { return 0; }
  std::string ParNameDisp() const { return " "; }
  std::string ParNameFile() const { return " "; }
  std::string ParAbrvDisp() const { return " "; }
  std::string ParAbrvFile() const { return " "; }
  std::string ParIcon() const { return "IMGNOICON"; }
  void SetPar(int code, std::string nameDisp, std::string nameFile, std::string abrvDisp, std::string abrvFile,
              std::string icon); // never returned

  // Mode tests of the collection.
  bool MakesOwnRow() const { return RegModeCode <= RegMode::Point || RegModeCode == RegMode::PointContinues; }
  bool HasValue() const; // one that is worth carrying: not 0, and no text that reads so
  bool IsCarried() const { return RegModeCode < RegMode::Point || RegModeCode >= RegMode::Continues; }

private:
  const ObsValue& Smaller() const;
  const ObsValue& Larger() const;
  ObsValue Lowest() const;
  ObsValue Highest() const;
  bool KeyIsTaken(int code) const;

  const ImageList& pictures;
  const TestSetup& setup;
  ObsValue present = std::string();
  ObsValue storedMin = 0, storedMax = 3;
  std::string dispText, fileText, nameDisp, nameFile, abrvDisp, abrvFile, obsIcon;
  int keyCode = -1;
  int parCode = 0;
  std::string parNameDisp, parNameFile, parAbrvDisp, parAbrvFile, parIcon;
};

} // namespace trekor
