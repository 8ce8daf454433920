#include "Exporter.h"

#include "Disk.h"
#include "WorkFolder.h"
#include "store/Cursor.h"
#include "store/InUse.h"
#include "values/DistanceUnits.h"
#include "values/Text.h"

#include <algorithm>
#include <fstream>
#include <string_view>
#include <system_error>

namespace trekor {

namespace fs = std::filesystem;

Exporter::Exporter(const Arguments& userWishes)
    : wishes(userWishes), comma({units, people, wishes.setup, position, naming}, workPlace, data) {
  units.FileStationUnit = wishes.stationUnit;
  units.FileUnitsUS = wishes.us;
  people.OperatorName = wishes.operatorName;
}

std::string Exporter::WorkPlace::NativePath(const std::string& path) {
  return (folder / path.substr(1)).string();
}

Exit Exporter::Export(const std::string& name, std::string& written, std::string& told) {
  const Failure failure = Convert(name, written, told);
  data.CloseDataFile();
  if (failure)
    told += name + ": " + failure.words + "\n";
  return failure.code;
}

Exporter::Failure Exporter::Convert(const std::string& name, std::string& written, std::string& told) {
  const fs::path file = name;
  outFolder = wishes.out.empty() ? file.parent_path() : fs::path(wishes.out);
  if (outFolder.empty())
    outFolder = ".";
  if (Failure failure = CheckName(file))
    return failure;
  if (cleared.insert(outFolder).second) // once, as looking through a large folder takes its time
    ClearLeftWorkFolders(outFolder);
  const WorkFolder work(outFolder);
  if (work.Error())
    return Unwritable(work.Error().value(), outFolder.string());
  if (Failure failure = Open(file, work.Path()))
    return failure;
  if (const std::string warning = UnitWarning(); !warning.empty())
    told += name + ": " + warning + "\n";
  naming.DataName = Trim(file.stem().string());
  std::vector<std::string> made;
  Failure failure = Write(work.Path(), made);
  data.CloseDataFile(); // it may lie in the work folder
  return failure ? failure : PutInPlace(work.Path(), made, written);
}

Exporter::Failure Exporter::CheckName(const fs::path& file) const {
  std::error_code error;
  if (!SameText(file.extension().string(), ".MDB"))
    return {Exit::NotOpened, "not a data file: the name does not end in .mdb"};
  if (Trim(file.stem().string()).empty())
    return {Exit::NotOpened, "not a data file: the name is blank"};
  if (!fs::exists(file, error))
    return {Exit::NotOpened, "no such file"};
  if (!fs::is_directory(outFolder, error))
    return {Exit::Refused, "no such folder: " + outFolder.string()};
  return {};
}

namespace {

// A copy that may be folded, with the log that lies beside the file.
std::error_code CopyWithLog(const fs::path& file, const fs::path& to) {
  std::error_code error;
  if (fs::copy_file(file, to, error))
    fs::permissions(to, fs::perms::owner_write, fs::perm_options::add, error);
  for (const char* tail : {"-wal", "-journal"}) {
    const fs::path log = file.string() + tail;
    std::error_code none;
    if (!error && fs::exists(log, none))
      fs::copy_file(log, to.string() + tail, error);
  }
  return error;
}

// Some other program's database lacks a table; a damaged data file has all by name.
bool HasTables(const std::string& nativePath) {
  const auto database = Database::Open(nativePath, OpenMode::ReadOnly);
  const auto names = database ? database->TableNames() : std::vector<std::string>();
  return std::count_if(names.begin(), names.end(), [](const std::string& name) {
           return name == "Sessions" || name == "Observations" || name == "Stations" || name == "Registrations";
         }) == 4;
}

} // namespace

Exporter::Failure Exporter::Open(const fs::path& file, const fs::path& workFolder) {
  fs::path readable = file;
  switch (LookAt(file.string())) {
  case Sight::Free:
    break;
  case Sight::NeedsFolding:
    readable = workFolder / "copy.mdb";
    if (const std::error_code error = CopyWithLog(file, readable))
      return Unwritable(error.value(), outFolder.string());
    break;
  case Sight::Missing:
  case Sight::NoDatabase:
    return {Exit::NotOpened, "not a data file"};
  case Sight::InUse:
    return {Exit::NotOpened, "in use by another program"};
  case Sight::Damaged:
    return {Exit::Damaged, "the file is damaged"};
  case Sight::Unreadable:
    return {Exit::NotOpened, "may not be read"};
  }
  return OpenReadable(readable.string());
}

Exporter::Failure Exporter::OpenReadable(const std::string& nativePath) {
  if (data.Open(nativePath, OpenMode::ReadOnly))
    return {};
  if (HasTables(nativePath))
    return {Exit::Damaged, "the file is damaged"};
  return {Exit::NotOpened, "not a data file: it lacks the tables of one"};
}

Exporter::Failure Exporter::Write(const fs::path& workFolder, std::vector<std::string>& made) {
  workPlace.folder = workFolder;
  ExportWish wish;
  wish.join = wishes.join;
  wish.loadedObservations = [this](std::int32_t id) { return ObservationCount(id); };
  const ExportResult result = ExportSessions(naming, data, comma, wish);
  made = result.written;
  if (result.unreadable)
    return {Exit::Damaged, "the file is damaged"};
  if (result.unwritable)
    return Unwritable(result.writeError, outFolder.string());
  for (const std::string& name : made)
    if (const int error = SyncFile((workFolder / (name + ".TKR")).string()); error != 0)
      return Unwritable(error, outFolder.string());
  return {};
}

Exporter::Failure Exporter::PutInPlace(const fs::path& workFolder, const std::vector<std::string>& made,
                                       std::string& written) const {
  for (const std::string& name : made)
    if (Failure failure = CheckPlace(outFolder / (name + ".TKR")))
      return failure;
  for (const std::string& name : made) {
    const fs::path place = outFolder / (name + ".TKR");
    std::error_code error;
    fs::rename(workFolder / place.filename(), place, error);
    if (error)
      return Unwritable(error.value(), place.string());
    written += place.string() + "\n";
  }
  return {};
}

// A data file may have this name, by a link or by itself: its content is tested, not its name.
Exporter::Failure Exporter::CheckPlace(const fs::path& place) const {
  constexpr std::string_view database("SQLite format 3\0", 16);
  std::error_code error;
  const fs::file_status found = fs::status(place, error);
  if (fs::is_directory(found))
    return {Exit::Refused, "a folder is in the way: " + place.string()};
  if (fs::exists(found) && !fs::is_regular_file(found))
    return {Exit::Refused, "something that is no file is in the way: " + place.string()};
  std::string head(database.size(), ' ');
  if (std::ifstream(place, std::ios::binary).read(head.data(), static_cast<std::streamsize>(head.size())) &&
      head == database)
    return {Exit::Refused, "a data file is in the way: " + place.string()};
  if (fs::exists(found) && (found.permissions() & fs::perms::owner_write) == fs::perms::none)
    return {Exit::Refused, "may not be replaced: " + place.string()};
  return {};
}

Exporter::Failure Exporter::Unwritable(int error, const std::string& where) {
  if (IsFull(error))
    return {Exit::DiskFull, "the disk is full: " + where};
  return {Exit::Refused, "cannot be written: " + where + ": " + std::generic_category().message(error)};
}

// Positions go out as they are stored: in another unit than theirs they mislead.
std::string Exporter::UnitWarning() {
  data.rsStations->MoveLast();
  if (data.rsStations->Eof() || data.rsStations->Get("StationUnit").IsNull())
    return "";
  const auto stored = static_cast<int>(data.rsStations->Get("StationUnit").Integer());
  if (stored == wishes.stationUnit)
    return "";
  return "stations are stored in " + UnitName(stored) + " and written as " + UnitName(wishes.stationUnit) +
         "; see --station-unit";
}

int Exporter::ObservationCount(std::int32_t sessionID) {
  Cursor count(*data.database,
               "SELECT count(*) FROM Observations WHERE SessionID=" +
                   (sessionID != 0 ? std::to_string(sessionID) : "(SELECT max(SessionID) FROM Sessions)"));
  return count.Step() ? static_cast<int>(count.Integer(0)) : 0;
}

} // namespace trekor
