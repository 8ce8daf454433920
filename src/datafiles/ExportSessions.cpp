#include "datafiles/ExportSessions.h"

namespace trekor {

std::string SessionSuffix(std::int32_t sessionID) {
  return FormatNumber(sessionID, "00").insert(0, 1, '-');
}

namespace {

// Takes the outcome of the comma file of this name into the result of them all.
void Note(const CommaFile& comma, const std::string& name, ExportResult& result) {
  if (comma.Outcome() == CommaOutcome::Written)
    result.written.push_back(name);
  result.unreadable = result.unreadable || comma.Outcome() == CommaOutcome::Unreadable;
  if (comma.Outcome() != CommaOutcome::Unwritable)
    return;
  result.unwritable = true;
  result.writeError = comma.WriteError();
}

} // namespace

ExportResult ExportSessions(FileNaming& file, DataFile& data, CommaFile& comma, const ExportWish& wish) {
  ExportResult result;
  const auto write = [&](std::int32_t sessionID, const std::string& name) {
    file.AsciiName = name;
    comma.WriteCommaFile(sessionID, wish.CheckTKR, wish.CheckTKR ? wish.loadedObservations(sessionID) : 0);
    Note(comma, name, result);
  };
  Recordset& sessions = *data.rsSessions;
  sessions.MoveFirst();
  if (wish.join && !sessions.Eof()) {
    write(0, file.DataName);
    return result;
  }
  // The first number is 1, whatever the first row says: a file that begins with session 2 never gives that one, as the
  // failed search stays on the first row and the walk goes on behind it. Kept: offices know these files so.
  for (std::int32_t number = 1; !sessions.Eof();) {
    write(number, file.DataName + SessionSuffix(number));
    sessions.MoveNext();
    number = static_cast<std::int32_t>(sessions.Get("SessionID").Integer());
  }
  result.unreadable = result.unreadable || sessions.Failed();
  return result;
}

} // namespace trekor
