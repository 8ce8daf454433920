// The load of the main form: events tied to their handlers, the stored look, the first setup, the window, the link.
#include "collection/Icons.h"
#include "collection/Measurements.h"
#include "collection/Parts.h"

namespace trekor {

namespace {} // namespace

void Measurements::WireEvents() {
  form.OnKeyDown = [this](int keyCode, int shift) { return Form_KeyDown(keyCode, shift); };
  form.OnKeyElsewhere = [this](int keyCode, int shift) {
    return rooms.state.run.RunState != RunStates::Idle && Form_KeyDown(keyCode, shift);
  };
  form.OnKeyUp = [this](int keyCode) { p->formKeys.Form_KeyUp(keyCode); };
  form.OnKeyPress = [this](char32_t typed) { return Form_KeyPress(typed); };
  form.OnActivate = [this] { p->formKeys.Form_Activate(); };
  form.OnResize = [this] { p->layout.Resize(); };
  form.OnQueryUnload = [this] {
    p->ctx.fields.leaveLater = p->ctx.fields.preparing;
    if (!p->ctx.fields.preparing)
      CloseForm();
    return !p->ctx.fields.preparing;
  };
  form.IdleTimer.OnTimer = [this] { Idle_Tick(); };
  form.TimerCurtain.OnTimer = [this] { p->layout.TimerCurtain_Timer(); };
  form.tbControlBar.OnButtonClick = [this](const std::string& key) { p->formKeys.tbControlBar_ButtonClick(key); };
  form.TabStrip1.OnClick = [this] { p->layout.TabStrip1_Click(); };
  form.UpDnPicture.OnClick = [this] { p->stepping.UpDnPicture_Click(); };
  form.cboTestSetupNames.OnClick = [this] { p->setupChoice.cboTestSetupNames_Click(); };
  form.mnuNew.OnClick = [this] { mnuNew_Click(); };
  form.mnuClose.OnClick = [this] { mnuClose_Click(); };
  form.mnuExit.OnClick = [this] { mnuExit_Click(); };
  form.mnuViewKeyBoard.OnClick = [this] { p->keyPictures.mnuViewKeyBoard_Click(); };
  form.mnuViewKeyPad.OnClick = [this] { p->keyPictures.mnuViewKeyPad_Click(); };
  form.mnuViewSocket.OnClick = [this] { rooms.platform.shell.Show(rooms.socket.form); };
  p->boxes.Wire();
}

void Measurements::LoadForm() {
  p->ctx.fields.loading = true;
  rooms.platform.shell.Hourglass(true);
  Load_Icons(form, rooms.state.folders.GraphicsPath, rooms.platform.drives);
  p->frmBars.Loaded = true; // the pictures of the bars are the views' own
  p->layout.Setup_Tabs();
  rooms.texts.LoadFormProperties(form);
  LoadControls();
  LoadDirection();
  rooms.state.run.RunState = RunStates::Idle;
  ShowForm();
  p->ctx.fields.loading = false; // the link may command a start as soon as it stands
  if (!p->ctx.fields.ending) {
    Send_SystemInfo();
    p->ctx.Pump();
    p->layout.Resize();
  }
  rooms.platform.shell.Hourglass(false);
  if (!p->ctx.fields.ending)
    form.IdleTimer.SetRunning(true);
}

void Measurements::LoadControls() {
  p->layout.Resize(); // the grid comes to stand under the tabs
  p->layout.TabStrip1_Click();
  for (int i = 0; i < form.tbControlBar.Count(); ++i) // the bar's row has no place for the tips of its buttons
    form.tbControlBar.SetButtonTip(i, rooms.texts.GetText("T_" + form.tbControlBar.Buttons(i).Key));
  form.mnuMessaging.SetVisible(rooms.state.run.UserLevel >= 1); // both ways: an ordinary user's session is stored too
  // What these open is not built yet.
  for (Menu* entry : {&form.mnuOpen, &form.mnuExport, &form.mnuObsEdit, &form.mnuOptions, &form.mnuMessaging,
                      &form.mnuHelpTopics, &form.mnuAbout})
    entry->SetEnabled(false);
  auto& previous = rooms.state.position.PreviousStation;
  previous.SetText(form.Texts8.Text());
  form.Texts8.SetText(previous.Text());
  p->stepping.Validate_Step();
  p->stepping.Validate_Station();
  p->boxes.ValidateGridDepth();
  p->keyPictures.Init_KeyTables();
  p->setupChoice.Load_TestSetupNames();
  p->stepping.ShowUnitLabel();
}

// The opposite of what the label says, then the click that turns it: so picture, label and direction agree, and the
// label "1" starts with stations increasing.
void Measurements::LoadDirection() {
  rooms.state.position.DmiIncreasing = form.DmiDirLabel.Caption() != "1";
  p->stepping.UpDnPicture_Click();
}

void Measurements::ShowForm() {
  auto& shell = rooms.platform.shell;
  SetCaption();
  shell.Load(form);
  form.Loaded = true;
  shell.Show(form);
  // The first word on units has no socket to go to, but its wait is part of the start: spent here, the form is painted
  // in it. The sound device, too, can wait until there is something to see.
  SendUnits(rooms.state, rooms.socket);
  if (p->ctx.fields.ending) // closed in the wait: nothing else may come up, the link least of all
    return;
  rooms.platform.sound.Open_SoundDevice();
  rooms.messages.LoadForm();
  p->asking.NumericPrompt.Load();
  p->asking.TextPrompt.Load();
  rooms.socket.Load();
  p->keyPictures.LoadViews();
  p->keyPictures.Show_KeyForms();
  form.tbControlBar.SetButtonEnabled("play", true);
  form.tbControlBar.SetButtonEnabled("pause", false);
  form.tbControlBar.SetButtonEnabled("stop", false);
  p->grids.Format_GridHeader();
}

// "SET SYSTEM TREKOR UNKNOWN 7707-104". Before the connection stands it would go nowhere.
void Measurements::Send_SystemInfo() {
  rooms.socket.WaitForFirstConnection();
  p->ctx.Send(std::string("SET SYSTEM TREKOR ") + (rooms.state.run.Simulator ? "SIMULATOR" : "UNKNOWN") + " " +
              rooms.state.command.HardwareName);
}

// The close box: the windows come back first, then a run is stopped and a file closed.
void Measurements::CloseForm() {
  if (form.WindowState() == WindowStates::Minimised) {
    p->keyPictures.Show_KeyForms();
    form.SetWindowState(WindowStates::Normal);
    form.Refresh();
  }
  StopAndClose();
}

} // namespace trekor
