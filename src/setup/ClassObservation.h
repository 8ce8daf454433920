// One running observation: its value, limits, mode codes, key and names. Values change only through this class.
#pragma once

#include "forms/Controls.h"

#include <cstdint>
#include <string>
#include <variant>

namespace trekor {

// Text, a whole number, or a real number.
using ObsValue = std::variant<std::string, std::int32_t, double>;
// As a cell, a file or a prompt shows it: "." as mark whatever the locale, at most 15 digits.
std::string ObsValueText(const ObsValue& value);
double ObsValueNumber(const ObsValue& value); // a text reads as its leading number

class TestSetup;

class ClassObservation {
public:
  // `pictures` answers ObsIcon; `setup` the duplicate test of KeyCode. Both outlive the object.
  ClassObservation(const ImageList& pictures, const TestSetup& setup);

  void IncValue();
  void Reset();
  double Min() const;
  double Max() const;
  void SetMin(double v) { storedMin = v; }
  void SetMax(double v) { storedMax = v; }
  const ObsValue& Default() const { return present; }
  void SetDefault(const ObsValue& v);
  std::string DefaultText() const { return ObsValueText(present); }
  double DefaultNumber() const { return ObsValueNumber(present); }

  std::string DispText() const;
  std::string FileText() const;
  void SetDispText(std::string t) { dispText = std::move(t); }
  void SetFileText(std::string t) { fileText = std::move(t); }
  int RegModeCode = 1, KeyingCode = 0, DataTypeID = 0;
  std::int32_t ObsParID = 0;
  int KeyCode() const { return keyCode; }
  void SetKeyCode(int code); // -1 when the key is invalid or another observation holds it
  int Shift = -1;            // stored only
  int ObsCode = 0;
  std::string ObsNameDisp() const, ObsNameFile() const, ObsAbrvDisp() const, ObsAbrvFile() const, ObsIcon() const;
  void SetObsNames(std::string nameDisp, std::string nameFile, std::string abrvDisp, std::string abrvFile);
  void SetObsIcon(std::string key) { obsIcon = std::move(key); }
  // The running program shows no parameter: constants whatever the database holds, or the data files would change.
  int ParCode() const { return 0; }
  std::string ParNameDisp() const { return " "; }
  std::string ParNameFile() const { return " "; }
  std::string ParAbrvDisp() const { return " "; }
  std::string ParAbrvFile() const { return " "; }
  std::string ParIcon() const { return "IMGNOICON"; }
  void SetPar(int code, std::string nameDisp, std::string nameFile, std::string abrvDisp, std::string abrvFile,
              std::string icon); // kept, never returned

  // Mode tests of the collection.
  bool MakesOwnRow() const { return RegModeCode <= 0 || RegModeCode == 3; }
  bool IsCarried() const { return RegModeCode < 0 || RegModeCode >= 2; }

private:
  const ImageList& pictures;
  const TestSetup& setup;
  ObsValue present = std::string();
  double storedMin = 0, storedMax = 3;
  std::string dispText, fileText, nameDisp, nameFile, abrvDisp, abrvFile, obsIcon;
  int keyCode = -1;
  int parCode = 0;
  std::string parNameDisp, parNameFile, parAbrvDisp, parAbrvFile, parIcon;
};

} // namespace trekor
