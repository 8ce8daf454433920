#include "collection/FileMenu.h"

namespace trekor {

void FileMenu::mnuNew_Click() {
  if (Busy())
    return;
  if (stage.FileOpen())
    mnuClose_Click();
  if (!NameFile())
    return;
  // Sending the road pumps. Lines of the link wait until the file is named, made and announced.
  const SocketProp::Hold later = news.HoldLines();
  MakeNamed();
  news.AnnounceFile();
}

// A start or a second form in the pumps would find no file yet, and ask once more.
void FileMenu::MakeNamed() {
  const WhileSet still = stage.Ask();
  dialogs.fileNew.TakeOver();
  file.NewName();
  Prepare_File();
}

// False when the operator has named none, or when the link has opened a file meanwhile, which stays.
bool FileMenu::NameFile() {
  if (stage.FileOpen() || stage.InRun())
    return false;
  const WhileSet up = stage.Ask();
  return dialogs.fileNew.ShowDialog() && !stage.FileOpen() && !stage.Ending();
}

void FileMenu::mnuOpen_Click() {
  if (Busy() || !stage.AtRest())
    return;
  if (stage.FileOpen())
    mnuClose_Click();
  if (!ChooseFile())
    return;
  const SocketProp::Hold later = news.HoldLines();
  dialogs.fileOpen.TakeOver();
  file.NewName();
  Reopen();
  news.AnnounceFile();
}

// As NameFile. A start that had waited for the close may have begun a run.
bool FileMenu::ChooseFile() {
  if (stage.FileOpen() || !stage.AtRest())
    return false;
  const WhileSet up = stage.Ask();
  return dialogs.fileOpen.ShowDialog() && !stage.FileOpen() && !stage.Ending();
}

void FileMenu::Reopen() {
  const WhileSet preparing = stage.Prepare();
  status.Lock_SetupControls();
  file.Reopen();
  status.SetCaption();
  if (!stage.FileOpen())
    status.Unlock_SetupControls();
}

void FileMenu::mnuExport_Click() {
  if (Busy() || !stage.AtRest() || stage.FileOpen())
    return;
  const WhileSet up = stage.Ask();
  dialogs.fileExport.ShowDialog();
  status.SetCaption(); // which has told the progress
}

// Showing the progress lets events run. The link waits, as a file that it opens would take the place of the one that is
// being read. An exit waits for the end of the present file. The form asks for an export also in the pumps in which the
// link's file is being made under it.
void FileMenu::Export(const FileExportDialog::Wish& wish) {
  if (stage.Preparing() || stage.FileOpen() || stage.Ending())
    return;
  const SocketProp::Hold later = news.HoldLines();
  const WhileSet preparing = stage.Prepare();
  for (const std::string& name : wish.names)
    if (!stage.LeaveIsWanted() && dialogs.fileExport.Begins(name))
      work.exporting.ExportDataFile(wish.folder, name, wish.join, wish.CheckTKR);
  work.options.LoadOptions();
}

// Storing a large picture lets events run. A start then would find no file yet and ask for one, and an exit would leave
// the file half made: the link and the exit wait, and the operator's own commands are refused.
void FileMenu::Prepare_File() {
  if (!file.Named() || stage.Preparing() || stage.Ending())
    return;
  const SocketProp::Hold later = news.HoldLines();
  const WhileSet preparing = stage.Prepare();
  status.Lock_SetupControls(); // its observations are being stored
  if (file.Create())
    dialogs.GiveWay();
  status.SetCaption();
  if (!stage.FileOpen())
    status.Unlock_SetupControls();
}

void FileMenu::mnuClose_Click() {
  if (stage.InRun() || (stage.Announced() && !stage.Ending()) || stage.Closing() || stage.Preparing())
    return;
  status.UnlockStep();
  if (!stage.FileOpen())
    return;
  const SocketProp::Hold later = news.HoldLines(); // a file opened by the link now would be closed with this one
  CloseFile();
  status.SetCaption();
  status.Unlock_SetupControls();
  file.StampClose();
}

void FileMenu::CloseFile() {
  const RunStage::Command command(stage); // no start within the pumps
  const WhileSet closing = stage.Close();
  const std::string unwanted = file.Finish();
  news.AnnounceClose();
  file.LetGo(unwanted);
}

} // namespace trekor
