#include "collection/Measurements.h"

#include "collection/RunSubjects.h"

namespace trekor {

Measurements::Measurements(MeasurementsForm& form, const RunRooms& rooms)
    : form(form), rooms(rooms), subjects(std::make_unique<RunSubjects>(form, rooms)) {
  rooms.comma.AsciiFileProgress = [this](int percent) {
    subjects->status.AsciiFileProgress(percent);
    this->rooms.dialogs.fileExport.ShowProgress(percent);
  };
  rooms.dialogs.fileExport.OnExport = [this](const auto& wish) { subjects->fileMenu.Export(wish); };
  rooms.dialogs.fileNew.Assist = [this](int number) { subjects->feedback.Assist(number); };
  WireKeys();
  WireControls();
  WireMenus();
}

Measurements::~Measurements() = default;

void Measurements::WireKeys() {
  form.OnKeyDown = [this](int keyCode, int shift) { return subjects->formKeys.Form_KeyDown(keyCode, shift); };
  form.OnKeyElsewhere = [this](int keyCode, int shift) {
    return subjects->stage.InRun() && subjects->formKeys.Form_KeyDown(keyCode, shift);
  };
  form.OnKeyUp = [this](int keyCode) { subjects->formKeys.Form_KeyUp(keyCode); };
  form.OnKeyPress = [this](char32_t typed) { return subjects->formKeys.Form_KeyPress(typed); };
  form.OnActivate = [this] { subjects->formKeys.Form_Activate(); };
  form.tbControlBar.OnButtonClick = [this](const std::string& key) {
    subjects->formKeys.tbControlBar_ButtonClick(key);
  };
}

void Measurements::WireControls() {
  form.OnResize = [this] { subjects->layout.Resize(); };
  form.OnQueryUnload = [this] { return QueryUnload(); };
  form.IdleTimer.OnTimer = [this] {
    subjects->idle.Idle_Tick();
    subjects->wayOut.LeaveWhenDue();
  };
  form.TimerCurtain.OnTimer = [this] { subjects->layout.TimerCurtain_Timer(); };
  form.TabStrip1.OnClick = [this] { subjects->layout.TabStrip1_Click(); };
  form.UpDnPicture.OnClick = [this] { subjects->stepBoxes.UpDnPicture_Click(); };
  // The stored look fills the list too, before keys and columns exist; the end of the load then chooses.
  form.cboTestSetupNames.OnClick = [this] {
    if (!subjects->stage.Loading())
      subjects->setupChoice.cboTestSetupNames_Click();
  };
  subjects->boxes.Wire();
  subjects->gridDepth.Wire();
  subjects->keyAssignment.Wire();
  rooms.socket.OnWatchdog = [this] { subjects->slowWork.ShowMarks(); };
}

void Measurements::WireMenus() {
  form.mnuNew.OnClick = [this] { subjects->fileMenu.mnuNew_Click(); };
  form.mnuOpen.OnClick = [this] { subjects->fileMenu.mnuOpen_Click(); };
  form.mnuExport.OnClick = [this] { subjects->fileMenu.mnuExport_Click(); };
  form.mnuClose.OnClick = [this] { subjects->fileMenu.mnuClose_Click(); };
  form.mnuExit.OnClick = [this] { subjects->wayOut.mnuExit_Click(); };
  form.mnuOptions.OnClick = [this] { subjects->optionsMenu.mnuOptions_Click(); };
  form.mnuViewKeyBoard.OnClick = [this] { subjects->keyPictures.mnuViewKeyBoard_Click(); };
  form.mnuViewKeyPad.OnClick = [this] { subjects->keyPictures.mnuViewKeyPad_Click(); };
  subjects->viewMenu.Wire();
  form.mnuViewSocket.OnClick = [this] { rooms.platform.shell.Show(rooms.socket.form); };
}

// The close box: shows the windows again, then stops a run and closes a file. False: not now.
bool Measurements::QueryUnload() {
  if (!subjects->stage.MayLeave())
    return false;
  if (form.WindowState() == WindowStates::Minimised) {
    subjects->keyPictures.Show_KeyForms();
    form.SetWindowState(WindowStates::Normal);
    form.Refresh();
  }
  subjects->wayOut.StopAndClose();
  return true;
}

void Measurements::UnloadForms() {
  rooms.socket.OnWatchdog = nullptr;
  subjects->frmBars.Loaded = false;
  subjects->asking.TextPrompt.Unload();
  subjects->asking.NumericPrompt.Unload();
  rooms.dialogs.GiveWay();
  rooms.optionsDialog.GiveWay();
  rooms.messages.UnloadForm();
  rooms.dialogs.Unload();
  rooms.optionsDialog.Unload();
  rooms.platform.sound.Close_SoundDevice();
  subjects->keyPictures.Unload();
}

} // namespace trekor
