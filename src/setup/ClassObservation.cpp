#include "setup/ClassObservation.h"

#include "setup/TestSetup.h"
#include "values/NumberText.h"
#include "values/Text.h"

#include <limits>
#include <optional>

namespace trekor {

namespace {

const std::string BlankName = " ";
const std::string NoIconKey = "IMGNOICON";

bool IsText(const ObsValue& v) {
  return std::holds_alternative<std::string>(v);
}

// A text is never equal to a limit, not even when it reads as the same number.
bool EqualsLimit(const ObsValue& v, const ObsValue& limit) {
  return !IsText(v) && ObsValueNumber(v) == ObsValueNumber(limit);
}

// Keeps the kind, so that a single counts in singles: 0.1 and 1 are 1.1, not 1.10000000149.
// A text that is no number cannot be counted up and stays.
ObsValue PlusOne(const ObsValue& v) {
  if (const auto* text = std::get_if<std::string>(&v))
    return IsNumeric(*text) ? ObsValue(TextToDouble(*text) + 1) : v;
  if (const auto* single = std::get_if<float>(&v))
    return *single + 1.0F;
  const auto* whole = std::get_if<std::int32_t>(&v);
  if (whole != nullptr && *whole < std::numeric_limits<std::int32_t>::max())
    return *whole + 1;
  return ObsValueNumber(v) + 1;
}

std::string FirstName(const std::string& wanted, const std::string& other) {
  std::string name = Trim(wanted);
  if (name.empty())
    name = Trim(other);
  return name.empty() ? BlankName : name;
}

} // namespace

std::string ObsValueText(const ObsValue& value) {
  if (const auto* text = std::get_if<std::string>(&value))
    return *text;
  if (const auto* whole = std::get_if<std::int32_t>(&value))
    return std::to_string(*whole);
  if (const auto* single = std::get_if<float>(&value))
    return SingleToText(*single);
  return NumberToText(std::get<double>(value));
}

double ObsValueNumber(const ObsValue& value) {
  if (const auto* text = std::get_if<std::string>(&value))
    return Val(*text);
  if (const auto* whole = std::get_if<std::int32_t>(&value))
    return *whole;
  if (const auto* single = std::get_if<float>(&value))
    return static_cast<double>(*single);
  return std::get<double>(value);
}

ClassObservation::ClassObservation(const ImageList& pictureList, const TestSetup& testSetup)
    : pictures(pictureList), setup(testSetup) {}

const ObsValue& ClassObservation::Smaller() const {
  return ObsValueNumber(storedMax) > ObsValueNumber(storedMin) ? storedMin : storedMax;
}

const ObsValue& ClassObservation::Larger() const {
  return ObsValueNumber(storedMax) > ObsValueNumber(storedMin) ? storedMax : storedMin;
}

ObsValue ClassObservation::Lowest() const {
  return DataTypeID == DataType::Boolean ? ObsValue(0) : Smaller();
}

ObsValue ClassObservation::Highest() const {
  return DataTypeID == DataType::Boolean ? ObsValue(1) : Larger();
}

void ClassObservation::IncValue() {
  present = EqualsLimit(present, Highest()) ? Lowest() : PlusOne(present);
}

void ClassObservation::Reset() {
  if (DataTypeID != DataType::Text)
    present = Lowest();
}

void ClassObservation::SetDefault(const ObsValue& v) {
  const std::string text = Trim(ObsValueText(v));
  if (DataTypeID == DataType::Text) {
    present = text;
    return;
  }
  present = Val(NormalizeDecimal(text));
  if (ObsValueNumber(present) < Min())
    present = Lowest();
  if (ObsValueNumber(present) > Max())
    present = Highest();
  if (DataTypeID == DataType::Integer) {
    // A number beyond 32 bits cannot be converted and stays a real one.
    if (const std::optional<std::int32_t> whole = ToInteger32(ObsValueNumber(present)))
      present = *whole;
  }
}

std::string ClassObservation::DispText() const {
  return dispText.empty() ? BlankName : dispText;
}

std::string ClassObservation::FileText() const {
  return fileText.empty() ? BlankName : fileText;
}

bool ClassObservation::HasValue() const {
  const auto text = DefaultText();
  return DataTypeID == DataType::Text ? !text.empty() && text != "0" : DefaultNumber() != 0;
}

bool ClassObservation::MayTakeKey(int code) const {
  return code != -1 && !KeyIsTaken(code) && Valid_KeyCode(code);
}

void ClassObservation::SetKeyCode(int code) {
  keyCode = MayTakeKey(code) ? code : -1;
}

// The same item twice (same ObsParID) is no conflict.
bool ClassObservation::KeyIsTaken(int code) const {
  for (int i = 1; i <= setup.ObsCount(); ++i) {
    const ClassObservation& other = setup.Observations(i);
    if (other.keyCode == code && other.ObsParID != ObsParID)
      return true;
  }
  return false;
}

std::string ClassObservation::ObsNameDisp() const {
  return FirstName(nameDisp, nameFile);
}
std::string ClassObservation::ObsNameFile() const {
  return FirstName(nameFile, nameDisp);
}
std::string ClassObservation::ObsAbrvDisp() const {
  return FirstName(abrvDisp, abrvFile);
}
std::string ClassObservation::ObsAbrvFile() const {
  return FirstName(abrvFile, abrvDisp);
}

std::string ClassObservation::ObsIcon() const {
  const ImageList::Picture* picture = pictures.Find(Upper(obsIcon));
  return picture != nullptr ? picture->Key : NoIconKey;
}

void ClassObservation::SetObsNames(std::string nameOnScreen, std::string nameInFile, std::string abrvOnScreen,
                                   std::string abrvInFile) {
  nameDisp = std::move(nameOnScreen);
  nameFile = std::move(nameInFile);
  abrvDisp = std::move(abrvOnScreen);
  abrvFile = std::move(abrvInFile);
}

void ClassObservation::SetPar(int code, std::string nameOnScreen, std::string nameInFile, std::string abrvOnScreen,
                              std::string abrvInFile, std::string icon) {
  parCode = code;
  parNameDisp = std::move(nameOnScreen);
  parNameFile = std::move(nameInFile);
  parAbrvDisp = std::move(abrvOnScreen);
  parAbrvFile = std::move(abrvInFile);
  parIcon = std::move(icon);
}

} // namespace trekor
