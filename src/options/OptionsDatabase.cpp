#include "options/OptionsDatabase.h"

#include "dbupdate/UpdateDatabase.h"
#include "state/DateText.h"
#include "store/Recordset.h"
#include "values/Text.h"

#include <cstdint>

namespace trekor {

namespace {

constexpr int LongestUser = 32; // characters
// KM to YARDS, what the link may name for files besides, and the three formats of coordinates; all count from 0.
constexpr int LastStationUnit = units::Yards, LastFileUnit = units::StnMetre, LastGeographicFormat = 2;

// Reads fields of the row; one that is missing, null or beyond its range leaves its value as it was.
class FieldReader {
public:
  explicit FieldReader(const Recordset& recordset) : row(recordset) {}

  void Read(const char* field, std::string& into) const {
    if (const FieldValue v = row.Get(field); !v.IsNull())
      into = v.Text();
  }
  void Read(const char* field, int& into, std::int64_t least, std::int64_t most) const {
    if (const FieldValue v = row.Get(field); !v.IsNull() && v.Integer() >= least && v.Integer() <= most)
      into = static_cast<int>(v.Integer());
  }
  // Any number but 0 counts as on.
  void Read(const char* field, bool& into) const {
    if (const FieldValue v = row.Get(field); !v.IsNull())
      into = v.Flag();
  }
  void Read(const char* field, LocalTime& into) const {
    if (const LocalTime date = ReadDate(row.Get(field).Text()); date != LocalTime{})
      into = date;
  }

private:
  const Recordset& row;
};

// Any text but "US", also none at all, means SI.
bool IsUS(const std::string& units) {
  return units == "US";
}

void ReadUnits(const FieldReader& row, OptionState& options, UnitSettings& units) {
  row.Read("Units", options.OptionUnits);
  units.UnitsUS = IsUS(options.OptionUnits);
  row.Read("StationUnit", units.StationUnit, 0, LastStationUnit);
  row.Read("FileUnits", options.OptionFileUnits);
  units.FileUnitsUS = IsUS(options.OptionFileUnits);
  row.Read("FileStationUnit", units.FileStationUnit, 0, LastFileUnit);
}

void ReadOptions(const FieldReader& row, OptionState& options) {
  if (int side = 0; row.Read("DrivingSide", side, -1, 1), side != 0)
    options.DrivingSide = side;
  row.Read("GeographicFormat", options.GeographicFormat, 0, LastGeographicFormat);
  row.Read("MDB", options.KeepMdb);
  row.Read("TKR", options.WriteAscii);
  row.Read("ErrorText", options.ErrorText);
  row.Read("ErrorVoice", options.ErrorVoice);
  row.Read("WarningText", options.WarningText);
  row.Read("WarningVoice", options.WarningVoice);
  row.Read("AssistanceText", options.AssistanceText);
  row.Read("AssistanceVoice", options.AssistanceVoice);
  row.Read("DataColVoice", options.DataColVoice);
  row.Read("TrayColor", options.TrayColor, INT32_MIN, INT32_MAX);
}

// Check marks are 0 or 1 in the table, unlike its boolean.
int Mark(bool on) {
  return on ? 1 : 0;
}

void WriteUnits(Recordset& row, const OptionState& options, const UnitSettings& units) {
  row.Set("Units", options.OptionUnits);
  row.Set("FileUnits", options.OptionFileUnits);
  row.Set("StationUnit", units.StationUnit);
  row.Set("FileStationUnit", units.FileStationUnit);
}

void WriteOptions(Recordset& row, const OptionState& options) {
  row.Set("DrivingSide", options.DrivingSide);
  row.Set("GeographicFormat", options.GeographicFormat);
  row.Set("MDB", Mark(options.KeepMdb));
  row.Set("TKR", Mark(options.WriteAscii));
  row.Set("ErrorText", Mark(options.ErrorText));
  row.Set("ErrorVoice", Mark(options.ErrorVoice));
  row.Set("WarningText", Mark(options.WarningText));
  row.Set("WarningVoice", Mark(options.WarningVoice));
  row.Set("AssistanceText", Mark(options.AssistanceText));
  row.Set("AssistanceVoice", Mark(options.AssistanceVoice));
  row.Set("DataColVoice", options.DataColVoice);
  row.Set("TrayColor", options.TrayColor);
}

} // namespace

OptionsDatabase::OptionsDatabase(ProgramState& programState, Platform& seams, MessageCatalogue& catalogue)
    : state(programState), platform(seams), messages(catalogue) {}

bool OptionsDatabase::LoadSoftwareDatabases() {
  const std::string& folder = state.folders.MdbFolder;
  UpdateResult software = UpdateDatabase(state.folders, platform, "Software", folder, "");
  if (software.programEnds)
    return false;
  state.versions.Software = software.version;
  database = std::move(software.database);
  LoadOptions();
  if (platform.drives.FileExists(software.path) && (!database || database->Failed())) {
    platform.shell.MsgBox("Cannot open " + software.path, state.folders.programName, BoxIcon::Stop);
    return false;
  }
  UpdateResult catalogue = UpdateDatabase(state.folders, platform, "Messages", folder, "");
  if (catalogue.programEnds)
    return false;
  state.versions.Messages = catalogue.version;
  messages.Open(std::move(catalogue.database));
  return true;
}

void OptionsDatabase::LoadOptions() {
  const std::unique_ptr<Recordset> rsOptions = database ? database->OpenTable("Options") : nullptr;
  if (!rsOptions)
    return;
  rsOptions->SetIndex("ID");
  rsOptions->MoveFirst();
  if (rsOptions->Eof())
    return;
  const FieldReader row(*rsOptions);
  row.Read("Datum", state.options.OptionsDate);
  row.Read("User", state.options.OptionsUser);
  state.options.OptionsUser = Trim(state.options.OptionsUser);
  ReadUnits(row, state.options, state.units);
  ReadOptions(row, state.options);
}

void OptionsDatabase::SaveOptions() {
  const std::unique_ptr<Recordset> rsOptions = database ? database->OpenTable("Options") : nullptr;
  if (!rsOptions)
    return;
  rsOptions->SetIndex("ID");
  if (!rsOptions->AddNew())
    return;
  rsOptions->Set("Datum", DateText(state.options.OptionsDate));
  rsOptions->Set("User", CutText(state.options.OptionsUser, LongestUser));
  WriteUnits(*rsOptions, state.options, state.units);
  WriteOptions(*rsOptions, state.options);
  rsOptions->Update();
}

void OptionsDatabase::Close() {
  database.reset();
}

} // namespace trekor
