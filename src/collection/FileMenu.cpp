#include "collection/FileMenu.h"

namespace trekor {

void FileMenu::mnuNew_Click() {
  if (stage.Asking() || stage.Preparing() || stage.Closing() || stage.Ending())
    return;
  if (stage.FileOpen())
    mnuClose_Click();
  if (!NameFile())
    return;
  // Telling the road pumps. What the link orders in there meets a file that is named, made and told.
  const SocketProp::Hold later = news.HoldLines();
  fileNew.TakeOver();
  file.NewName();
  Prepare_File();
  news.AnnounceFile();
}

// False when the operator has named none, and when the link was quicker: a file that it has opened behind the close or
// under the form stays.
bool FileMenu::NameFile() {
  if (stage.FileOpen())
    return false;
  const WhileSet up = stage.Ask();
  return fileNew.ShowDialog() && !stage.FileOpen() && !stage.Ending();
}

// Storing a large picture lets events run. A start that came there would find no file yet and ask for one, and an exit
// would leave it half made: the link and the exit wait, and the operator's own orders are refused.
void FileMenu::Prepare_File() {
  if (!file.Named() || stage.Preparing() || stage.Ending())
    return;
  const SocketProp::Hold later = news.HoldLines();
  const WhileSet preparing = stage.Prepare();
  status.Lock_SetupControls(); // its observations are being stored
  if (file.Create())
    fileNew.GiveWay();
  status.SetCaption();
  if (!stage.FileOpen())
    status.Unlock_SetupControls();
}

void FileMenu::mnuClose_Click() {
  if (stage.InRun() || stage.Closing() || stage.Preparing())
    return;
  status.UnlockStep();
  if (!stage.FileOpen())
    return;
  const SocketProp::Hold later = news.HoldLines(); // a file opened in here would be closed with the one before it
  CloseFile();
  status.SetCaption();
  status.Unlock_SetupControls();
  file.StampClose();
}

void FileMenu::CloseFile() {
  const RunStage::Command command(stage); // no start in the pumps in here
  const WhileSet closing = stage.Close();
  const std::string unwanted = file.Finish();
  news.AnnounceClose();
  file.LetGo(unwanted);
}

} // namespace trekor
