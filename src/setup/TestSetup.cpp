#include "setup/TestSetup.h"

#include "values/KeyCodes.h"

#include <algorithm>
#include <utility>

namespace trekor {

namespace {

constexpr std::int64_t LeastCode = -32768, LargestCode = 32767;

bool Between(int code, int first, int last) {
  return code >= first && code <= last;
}

std::string LoadQuery(std::int32_t setupID) {
  return "SELECT * FROM Setups, Observations, ObsLinguistic"
         " WHERE Setups.SetupID=" +
         std::to_string(setupID) +
         " AND Setups.ObsParID = Observations.ObsParID"
         " AND Observations.LanguageID=ObsLinguistic.LanguageID"
         " AND Observations.ObsCode=ObsLinguistic.ObsCode"
         " AND NOT Observations.ObsCode=0"
         " ORDER BY GridPosition";
}

std::string TextOf(const Recordset& row, const char* field) {
  return row.Get(field).Text();
}

// An empty field, or a number that is too large for its width, leaves the member as it was made.
template <class Width, class Member> void Take(Member& member, const FieldValue& field) {
  const std::int64_t number = field.Integer();
  if (!field.IsNull() && std::in_range<Width>(number))
    member = static_cast<Member>(number);
}

// The limits are singles. Held as singles, their text has the digits that were entered and comparing with them is
// exact.
ObsValue LimitOf(const FieldValue& field) {
  const double number = field.Number();
  const auto single = static_cast<float>(number);
  return static_cast<double>(single) == number ? ObsValue(single) : ObsValue(number);
}

// A code beyond 16 bits is still an invalid one.
int KeyCodeOf(const FieldValue& field) {
  return field.IsNull() ? -1 : static_cast<int>(std::clamp<std::int64_t>(field.Integer(), LeastCode, LargestCode));
}

void FillNames(ClassObservation& obs, const Recordset& row) {
  Take<std::int16_t>(obs.ObsCode, row.Get("Observations.ObsCode"));
  obs.SetObsNames(TextOf(row, "ObsNameDisp"), TextOf(row, "ObsNameFile"), TextOf(row, "ObsAbrvDisp"),
                  TextOf(row, "ObsAbrvFile"));
  obs.SetObsIcon(TextOf(row, "ObsIcon"));
  int parCode = 0;
  Take<std::int16_t>(parCode, row.Get("ParCode"));
  obs.SetPar(parCode, TextOf(row, "ParNameDisp"), TextOf(row, "ParNameFile"), TextOf(row, "ParAbrvDisp"),
             TextOf(row, "ParAbrvFile"), TextOf(row, "ParIcon"));
}

void FillValues(ClassObservation& obs, const Recordset& row) {
  obs.SetMin(LimitOf(row.Get("Min")));
  obs.SetMax(LimitOf(row.Get("Max")));
  obs.SetDispText(TextOf(row, "TextDisp"));
  obs.SetFileText(TextOf(row, "TextFile"));
  Take<std::int16_t>(obs.DataTypeID, row.Get("DataType"));
  Take<std::int32_t>(obs.ObsParID, row.Get("Observations.ObsParID"));
}

} // namespace

bool Valid_KeyCode(int code) {
  const bool functionKey = Between(code, keys::F5, keys::F10); // the others are the program's own
  const bool board = code == keys::Space || keys::IsDigit(code) || keys::IsLetter(code);
  const bool pad = code != keys::PadSeparator && Between(code, keys::Pad0, keys::PadDivide);
  return functionKey || board || pad;
}

TestSetup::TestSetup(ProgramState& programState, SetupDatabase& setupDatabase, const ImageList& pictureList)
    : state(programState), database(setupDatabase), pictures(pictureList), observations(1) {
  keyToObs.fill(-1);
}

bool TestSetup::Load_TestSetup() {
  const std::unique_ptr<Recordset> rows =
      database.ObsDB ? database.ObsDB->OpenQuery(LoadQuery(state.TestSetupID)) : nullptr;
  if (database.ObsDB && !rows)
    return false;
  ReleaseSetup();
  for (; rows && !rows->Eof(); rows->MoveNext())
    AddRow(*rows);
  obsCount = static_cast<int>(observations.size()) - 1;
  return true;
}

void TestSetup::ReleaseSetup() {
  for (int i = 1; i <= obsCount; ++i)
    SetKeyToObs(Observations(i).KeyCode(), -1);
  obsCount = 0;
  observations.resize(1);
}

// ObsCount is still 0 here, so two rows with the same key both keep it, and the table gives the key to the later one.
void TestSetup::AddRow(const Recordset& row) {
  const int i = static_cast<int>(observations.size());
  observations.push_back(std::make_unique<ClassObservation>(pictures, *this));
  ClassObservation& obs = *observations.back();
  FillNames(obs, row);
  FillValues(obs, row);
  const int storedKey = KeyCodeOf(row.Get("KeyCode"));
  obs.SetKeyCode(storedKey);
  SetKeyToObs(obs.KeyCode(), i);
  if (obs.KeyCode() != storedKey)
    Clear_SetupKey(i); // an invalid key is erased for good
  Take<std::int16_t>(obs.RegModeCode, row.Get("RegModeCode"));
  Take<std::int16_t>(obs.KeyingCode, row.Get("KeyingCode"));
  obs.Reset(); // last, as the type decides what the limits are
}

ClassObservation& TestSetup::AddObservation() {
  observations.push_back(std::make_unique<ClassObservation>(pictures, *this));
  ++obsCount;
  return *observations.back();
}

int TestSetup::KeyToObs(int code) const {
  return Between(code, 0, LastKeyCode) ? keyToObs.at(static_cast<std::size_t>(code) + 1) : -1;
}

// Code -1, "no key", has an entry that is neither written nor read.
void TestSetup::SetKeyToObs(int code, int obs) {
  if (Between(code, 0, LastKeyCode))
    keyToObs.at(static_cast<std::size_t>(code) + 1) = static_cast<std::int16_t>(obs);
}

void TestSetup::Store_SetupKey(int code, int i) {
  if (i < 1 || static_cast<std::size_t>(i) >= observations.size() || !database.ObsDB)
    return;
  const std::unique_ptr<Recordset> row =
      database.ObsDB->OpenQuery("SELECT * FROM Setups WHERE SetupID=" + std::to_string(state.TestSetupID) +
                                " AND ObsParID=" + std::to_string(Observations(i).ObsParID));
  if (row && !row->Eof() && row->Edit()) {
    row->Set("KeyCode", code);
    row->Update();
  }
}

} // namespace trekor
