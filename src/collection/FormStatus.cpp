#include "collection/FormStatus.h"

namespace trekor {

// "Veldmark Trekor - D:\Roads\ROAD09.mdb (1)"
void FormStatus::SetCaption() {
  std::string caption = "Veldmark Trekor";
  if (stage.FileOpen())
    caption += " - " + state.file.DataFilePath + " (" + std::to_string(state.file.SessionID) + ")";
  form.SetCaption(caption);
}

void FormStatus::AsciiFileProgress(int percent) {
  form.SetCaption("Writing ASCII output file. Please wait ... (" + std::to_string(percent) + "%)");
  form.Refresh();
}

void FormStatus::Refresh() {
  if (!stage.Closing()) // during a close it shows the progress of the comma file
    SetCaption();
  keyPictures.WatchMinimise();
}

void FormStatus::SetButtons(bool play, bool pause, bool stop) {
  ToolBar& bar = form.tbControlBar;
  bar.SetButtonEnabled("play", play);
  bar.SetButtonEnabled("pause", pause);
  bar.SetButtonEnabled("stop", stop);
}

void FormStatus::SetMenusEnabled(bool on) {
  form.mnuFile.SetEnabled(on);
  form.mnuSetup.SetEnabled(on);
}

void FormStatus::EnableSetupControls(bool on) {
  options.LockFileUnits(!on);
  form.cboTestSetupNames.SetEnabled(on);
  form.labels9.SetEnabled(on);
  form.mnuExport.SetEnabled(on);
}

void FormStatus::EnableStep(bool on) {
  form.UpDnPicture.SetEnabled(on);
  form.Texts7.SetEnabled(on);
}

void FormStatus::ShowEndOfRun() {
  form.Texts8.SetText(state.position.DmiStation.Text());
}

} // namespace trekor
