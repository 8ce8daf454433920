#include "collection/SessionFile.h"

#include "datafiles/CopyFiles.h"
#include "datafiles/DataFiles.h"
#include "datafiles/ExportSessions.h"
#include "datafiles/NewNames.h"
#include "values/Text.h"

#include <algorithm>

namespace trekor {

void SessionFile::NewName() {
  state.file.DataGuid = NewGuid(false, platform.process);
}

bool SessionFile::Reopen() {
  const bool opened = storing.ReopenFile();
  if (!opened)
    state.file.DataName.clear();
  return opened;
}

// The copies are made from the closed file, before it may be deleted.
std::string SessionFile::Finish() {
  const auto& options = state.options;
  const std::string path = state.file.DataFilePath;
  if (options.WriteAscii)
    WriteSessionComma();
  storing.CloseFile();
  const auto copied = BackUpFile();
  const bool mayGo = options.WriteAscii && !options.KeepMdb && StandsElsewhere(copied);
  return mayGo ? path : "";
}

void SessionFile::LetGo(const std::string& unwanted) {
  state.run.DataFileOpen = false;
  if (!unwanted.empty())
    platform.drives.DeleteFile(unwanted);
}

// The files whose copies are whole. A job named like a database of the program is not copied over it.
std::vector<std::string> SessionFile::BackUpFile() {
  const auto& file = state.file;
  Drives& drives = platform.drives;
  if (BelongsToProgram(state, drives, file.BackupPath + "\\" + file.AsciiName + ".mdb"))
    return {};
  return CopyFiles(file.DataPath, file.AsciiName, file.BackupPath, drives);
}

// Whether the closed data file may be deleted without loss: its comma file is beside it under its own name, holds every
// registration and is synced; or a whole copy is on the backup drive. The names compared are those of this close: the
// link may have named the next file already, and later sessions have names of their own.
bool SessionFile::StandsElsewhere(const std::vector<std::string>& copied) {
  const auto& file = state.file;
  const std::string own = file.DataPath + "\\" + file.AsciiName;
  if (own + ".mdb" != file.DataFilePath)
    return false;
  const bool copy = std::any_of(copied.begin(), copied.end(),
                                [&](const std::string& name) { return SameText(name, file.AsciiName + ".mdb"); });
  return copy || (comma.HoldsAll() && platform.drives.SyncFile(own + ".TKR"));
}

// The first session's comma file has the data file's name, later ones the session's number behind it: ROAD09-02.
void SessionFile::WriteSessionComma() {
  auto& file = state.file;
  file.AsciiName = file.DataName;
  if (file.SessionID > 1)
    file.AsciiName += SessionSuffix(file.SessionID);
  comma.WriteCommaFile(file.SessionID, true, setup.ObsCount());
}

} // namespace trekor
