#include "collection/FileMenu.h"

#include "datafiles/ExportSessions.h"

namespace trekor {

void FileMenu::mnuNew_Click() {
  // Asking already: a start from the link while the operator has the form before him.
  if (asking || ctx.fields.closing || ctx.fields.ending)
    return;
  if (ctx.run().DataFileOpen)
    mnuClose_Click();
  {
    const WhileSet up(asking);
    ctx.rooms.fileNew.ShowDialog();
  }
  auto& file = ctx.state().file;
  if (file.DataName.empty() || ctx.fields.ending)
    return;
  file.DataGuid = NewGuid(false, ctx.rooms.platform.process);
  Prepare_File();
  Announce_File();
}

// Storing a large picture lets events run. A start that came there would find no file yet and ask for one, so the link
// waits, and the operator's key is refused.
void FileMenu::Prepare_File() {
  if (ctx.state().file.DataName.empty() || ctx.fields.ending)
    return;
  const SocketProp::Hold later(ctx.rooms.socket);
  const WhileSet preparing(ctx.fields.preparing);
  const WhileSet rowsWait(ctx.fields.rowOnStack); // of a run: one that left the grid now would find no file
  if (ctx.rooms.files.CreateDataFile(ctx.rooms.setup))
    ctx.fields.LastStationID = 0;
  if (ctx.fields.ending) { // an exit came in while the pictures were stored: nobody else would close this file
    ctx.rooms.files.CloseDataFile();
    ctx.run().DataFileOpen = false;
    return;
  }
  feedback.SetCaption();
  if (ctx.run().DataFileOpen)
    setups.Lock_SetupControls();
  else // perhaps the one before it had to go
    setups.Unlock_SetupControls();
}

// "FILE PATH D:\Roads", "FILE BACKUPPATH ", "FILE NAME ROAD09", "FILE EXTENSION MDB", "FILE GUID 00..FF",
// "FILE SESSION 1", "FILE OPEN", in one send.
void FileMenu::Announce_File() {
  if (ctx.run().FromLink || !ctx.run().DataFileOpen)
    return;
  const auto& file = ctx.state().file;
  ctx.Send("FILE PATH " + file.DataPath + "\r\nFILE BACKUPPATH " + file.BackupPath + "\r\nFILE NAME " + file.DataName +
           "\r\nFILE EXTENSION MDB\r\nFILE GUID " + file.DataGuid + "\r\nFILE SESSION " +
           std::to_string(file.SessionID) + "\r\nFILE OPEN");
}

void FileMenu::mnuClose_Click() {
  if (ctx.run().RunState != 0 || ctx.fields.closing)
    return;
  ctx.form.UpDnPicture.SetEnabled(true);
  ctx.form.Texts7.SetEnabled(true);
  if (!ctx.run().DataFileOpen)
    return;
  const SocketProp::Hold later(ctx.rooms.socket); // a file opened in here would be closed with the one before it
  Close_File();
  feedback.SetCaption();
  setups.Unlock_SetupControls();
  ctx.state().file.LastCloseTime = ctx.rooms.platform.clock.Now();
}

// The copies are made from the closed file, before it may be deleted. Data that stand nowhere else are never deleted:
// the file goes only when this close has left its comma file, on the disk and not in the system's memory alone.
void FileMenu::Close_File() {
  const RunCommand command(ctx.fields); // no start in the pumps in here
  const WhileSet closing(ctx.fields.closing);
  auto& state = ctx.state();
  const std::string path = state.file.DataFilePath;
  const bool written = state.options.WriteAscii && Write_CommaFile();
  const std::string commaPath = state.file.DataPath + "\\" + state.file.AsciiName + ".TKR";
  ctx.rooms.files.CloseDataFile();
  if (!state.file.BackupPath.empty())
    CopyFiles(state.file.DataPath, state.file.AsciiName, state.file.BackupPath, ctx.rooms.platform.drives);
  ctx.Send("FILE CLOSE"); // the control program wants to hear it also when it has asked for it
  ctx.run().DataFileOpen = false;
  Drives& drives = ctx.rooms.platform.drives;
  if (written && !state.options.KeepMdb && drives.SyncFile(commaPath))
    drives.DeleteFile(path);
}

// The first session's comma file has the data file's name, later ones the session's number behind it: ROAD09-02.
bool FileMenu::Write_CommaFile() {
  auto& file = ctx.state().file;
  file.AsciiName = file.DataName;
  if (file.SessionID > 1)
    file.AsciiName += SessionSuffix(file.SessionID);
  return ctx.rooms.comma.WriteCommaFile(file.SessionID, true, ctx.rooms.setup.ObsCount());
}

} // namespace trekor
