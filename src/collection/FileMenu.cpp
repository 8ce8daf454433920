#include "collection/FileMenu.h"

#include "datafiles/CopyFiles.h"
#include "datafiles/ExportSessions.h"
#include "datafiles/NewNames.h"
#include "values/Text.h"

#include <algorithm>

namespace trekor {

void FileMenu::mnuNew_Click() {
  const auto& f = ctx.fields;
  if (f.asking || f.preparing || f.closing || f.ending)
    return;
  if (ctx.Flags().DataFileOpen)
    mnuClose_Click();
  if (!NameFile())
    return;
  // Telling the road pumps. What the link orders in there meets a file that is named, made and told.
  const SocketProp::Hold later(ctx.rooms.socket);
  ctx.rooms.fileNew.TakeOver();
  ctx.State().file.DataGuid = NewGuid(false, ctx.rooms.platform.process);
  Prepare_File();
  Announce_File();
}

// False when the operator has named none, and when the link was quicker: a file that it has opened behind the close or
// under the form stays.
bool FileMenu::NameFile() {
  if (ctx.Flags().DataFileOpen)
    return false;
  const WhileSet up(ctx.fields.asking);
  return ctx.rooms.fileNew.ShowDialog() && !ctx.Flags().DataFileOpen && !ctx.fields.ending;
}

// Storing a large picture lets events run. A start that came there would find no file yet and ask for one, and an exit
// would leave it half made: the link and the exit wait, and the operator's own orders are refused.
void FileMenu::Prepare_File() {
  if (ctx.State().file.DataName.empty() || ctx.fields.preparing || ctx.fields.ending)
    return;
  const SocketProp::Hold later(ctx.rooms.socket);
  const WhileSet preparing(ctx.fields.preparing);
  const WhileSet rowsWait(ctx.fields.rowOnStack); // of a run: one that left the grid now would find no file
  setupChoice.Lock_SetupControls();               // its observations are being stored
  if (ctx.rooms.dataFiles.CreateDataFile(ctx.rooms.setup)) {
    ctx.fields.LastStationID = 0;
    ctx.rooms.fileNew.GiveWay();
  }
  feedback.SetCaption();
  if (!ctx.Flags().DataFileOpen)
    setupChoice.Unlock_SetupControls();
}

// "FILE PATH D:\Roads", "FILE BACKUPPATH ", "FILE NAME ROAD09", "FILE EXTENSION MDB", "FILE GUID 00..FF",
// "FILE SESSION 1", "FILE OPEN", in one send.
void FileMenu::Announce_File() {
  if (ctx.Flags().FromLink || !ctx.Flags().DataFileOpen)
    return;
  const auto& file = ctx.State().file;
  ctx.Send("FILE PATH " + file.DataPath + "\r\nFILE BACKUPPATH " + file.BackupPath + "\r\nFILE NAME " + file.DataName +
           "\r\nFILE EXTENSION MDB\r\nFILE GUID " + file.DataGuid + "\r\nFILE SESSION " +
           std::to_string(file.SessionID) + "\r\nFILE OPEN");
}

void FileMenu::mnuClose_Click() {
  if (ctx.Flags().RunState != RunStates::Idle || ctx.fields.closing || ctx.fields.preparing)
    return;
  ctx.form.UpDnPicture.SetEnabled(true);
  ctx.form.Texts7.SetEnabled(true);
  if (!ctx.Flags().DataFileOpen)
    return;
  const SocketProp::Hold later(ctx.rooms.socket); // a file opened in here would be closed with the one before it
  CloseFile();
  feedback.SetCaption();
  setupChoice.Unlock_SetupControls();
  ctx.State().file.LastCloseTime = ctx.rooms.platform.clock.Now();
}

// The copies are made from the closed file, before it may be deleted.
void FileMenu::CloseFile() {
  const RunCommand command(ctx.fields); // no start in the pumps in here
  const WhileSet closing(ctx.fields.closing);
  const auto& options = ctx.State().options;
  const std::string path = ctx.State().file.DataFilePath;
  if (options.WriteAscii)
    WriteSessionComma();
  ctx.rooms.dataFiles.CloseDataFile();
  const auto copied = BackUpFile();
  const bool mayGo = options.WriteAscii && !options.KeepMdb && StandsElsewhere(copied);
  ctx.Send("FILE CLOSE"); // the control program wants to hear it also when it has asked for it
  ctx.Flags().DataFileOpen = false;
  if (mayGo)
    ctx.rooms.platform.drives.DeleteFile(path);
}

// The files whose copies stand whole. A job called like a database of the program must not replace it by its copy.
std::vector<std::string> FileMenu::BackUpFile() {
  const auto& file = ctx.State().file;
  Drives& drives = ctx.rooms.platform.drives;
  if (BelongsToProgram(ctx.State(), drives, file.BackupPath + "\\" + file.AsciiName + ".mdb"))
    return {};
  return CopyFiles(file.DataPath, file.AsciiName, file.BackupPath, drives);
}

// Whether nothing is lost with the closed data file: its comma file lies beside it under its own name, holds every
// registration and is on the disk, not in the system's memory alone; or a copy stands whole on the backup drive. The
// names are those of this close: the link may have named the next file before it, and later sessions have names of
// their own.
bool FileMenu::StandsElsewhere(const std::vector<std::string>& copied) {
  const auto& file = ctx.State().file;
  const std::string own = file.DataPath + "\\" + file.AsciiName;
  if (own + ".mdb" != file.DataFilePath)
    return false;
  const bool copy = std::any_of(copied.begin(), copied.end(),
                                [&](const std::string& name) { return SameText(name, file.AsciiName + ".mdb"); });
  return copy || (ctx.rooms.comma.HoldsAll() && ctx.rooms.platform.drives.SyncFile(own + ".TKR"));
}

// The first session's comma file has the data file's name, later ones the session's number behind it: ROAD09-02.
void FileMenu::WriteSessionComma() {
  auto& file = ctx.State().file;
  file.AsciiName = file.DataName;
  if (file.SessionID > 1)
    file.AsciiName += SessionSuffix(file.SessionID);
  ctx.rooms.comma.WriteCommaFile(file.SessionID, true, ctx.rooms.setup.ObsCount());
}

} // namespace trekor
