#include "datafiles/SessionPreview.h"

#include "store/Database.h"
#include "store/Recordset.h"
#include "values/Text.h"

#include <memory>

namespace trekor {
namespace {

// A file of the same engine that is no data file has no such field.
bool IsDataFile(Database& database) {
  const auto version = database.OpenTable("Version");
  return version && !version->Eof() && version->HasField("Type") && !version->Failed();
}

// The table on its last row; null when it has none.
std::unique_ptr<Recordset> NewestRow(Database& database, const char* table, const char* index) {
  auto rows = database.OpenTable(table);
  if (!rows || !rows->SetIndex(index))
    return nullptr;
  rows->MoveLast();
  return rows->Eof() || rows->Failed() ? nullptr : std::move(rows);
}

SessionPreview ReadSession(const Recordset& row) {
  const auto text = [&row](const char* field) { return row.Get(field).Text(); };
  return {.Date = text("Date"),
          .FacilityName = text("FacilityName"),
          .SectionName = text("SectionName"),
          .Start = Trim(text("Start")),
          .End = Trim(text("End")),
          .TestSetup = text("TestSetup"),
          .Units = text("Units")};
}

} // namespace

bool PreviewDataFile(const std::string& nativePath, SessionPreview& preview) {
  const auto database = Database::Open(nativePath, OpenMode::Untouched);
  if (!database || !IsDataFile(*database))
    return false;
  const auto session = NewestRow(*database, "Sessions", "SessionID");
  const auto station = NewestRow(*database, "Stations", "StationID");
  if (!session || !station || station->Get("StationUnit").IsNull())
    return false;
  SessionPreview read = ReadSession(*session);
  read.StationUnit = static_cast<int>(station->Get("StationUnit").Integer());
  if (database->Failed())
    return false;
  preview = std::move(read);
  return true;
}

} // namespace trekor
