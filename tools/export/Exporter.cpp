#include "Exporter.h"

#include "store/Cursor.h"
#include "values/DistanceUnits.h"
#include "values/Text.h"

#include <system_error>

namespace trekor {

namespace fs = std::filesystem;

Exporter::Exporter(const Arguments& userWishes)
    : wishes(userWishes), files(state, machine.platform), comma(state, machine.platform, files) {
  state.units.FileStationUnit = wishes.stationUnit;
  state.units.FileUnitsUS = wishes.us;
  state.people.OperatorName = wishes.operatorName;
  state.TestSetupName = wishes.setup;
}

bool Exporter::Export(const std::string& name, std::string& written, std::string& told) {
  const fs::path file = name;
  std::string why;
  if (!Open(file, why)) {
    told += name + ": " + why + "\n";
    return false;
  }
  told += UnitWarning().empty() ? "" : name + ": " + UnitWarning() + "\n";
  state.file.DataPath = TwoPlaces::Out;
  ExportWish wish;
  wish.join = wishes.join;
  wish.loadedObservations = [this](std::int32_t id) { return ObservationCount(id); };
  const ExportResult result = ExportSessions(state, files, comma, wish);
  files.CloseDataFile();
  for (const std::string& made : result.written)
    written += (fs::path(machine.drives.outFolder) / (made + ".TKR")).string() + "\n";
  if (result.failed)
    told += name + ": the file is damaged, or its comma file could not be written\n";
  return !result.failed;
}

bool Exporter::Open(const fs::path& file, std::string& why) {
  std::error_code error;
  const fs::path folder = wishes.out.empty() ? file.parent_path() : fs::path(wishes.out);
  machine.drives.dataFile = file.string();
  machine.drives.outFolder = folder.empty() ? "." : folder.string();
  state.file.DataPath = TwoPlaces::In;
  state.file.DataName = Trim(file.stem().string());
  state.file.DataFilePath = std::string(TwoPlaces::In) + "\\" + file.filename().string();
  if (!SameText(file.extension().string(), ".MDB"))
    why = "not a data file: the name does not end in .mdb";
  else if (state.file.DataName.empty())
    why = "not a data file: the name is blank";
  else if (!fs::exists(file, error))
    why = "no such file";
  else if (!fs::is_directory(machine.drives.outFolder, error))
    why = "no such folder: " + machine.drives.outFolder;
  else if (const std::string over = OverDataFile(file); !over.empty())
    why = "would be written over by " + over;
  else if (!files.OpenDataFile(OpenMode::ReadOnly))
    why = "no data file, damaged, or in use";
  return why.empty();
}

std::string Exporter::OverDataFile(const fs::path& file) const {
  std::error_code error;
  for (const auto& entry : fs::directory_iterator(machine.drives.outFolder, error))
    if (SameText(entry.path().extension().string(), ".TKR") && fs::equivalent(entry.path(), file, error))
      return entry.path().string();
  return "";
}

// Positions go out as they are stored: in another unit than theirs they mislead.
std::string Exporter::UnitWarning() {
  files.rsStations->MoveLast();
  if (files.rsStations->Eof() || files.rsStations->Get("StationUnit").IsNull())
    return "";
  const auto stored = static_cast<int>(files.rsStations->Get("StationUnit").Integer());
  if (stored == wishes.stationUnit)
    return "";
  return "stations are stored in " + UnitName(stored) + " and written as " + UnitName(wishes.stationUnit) +
         "; see --station-unit";
}

int Exporter::ObservationCount(std::int32_t sessionID) {
  Cursor count(*files.database,
               "SELECT count(*) FROM Observations WHERE SessionID=" +
                   (sessionID != 0 ? std::to_string(sessionID) : "(SELECT max(SessionID) FROM Sessions)"));
  return count.Step() ? static_cast<int>(count.Integer(0)) : 0;
}

} // namespace trekor
