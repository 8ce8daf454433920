// The load of the main form: event handlers, the stored look, the first setup, the window, the link.
#include "collection/Icons.h"
#include "collection/Measurements.h"
#include "collection/RunSubjects.h"

namespace trekor {

void Measurements::LoadForm() {
  rooms.platform.shell.Hourglass(true);
  {
    const WhileSet loading = subjects->stage.Load(); // from here on the link may command a start
    Load_Icons(form, rooms.state.folders.GraphicsPath, rooms.platform.drives);
    subjects->frmBars.Loaded = true; // views draw the bars themselves
    subjects->layout.Setup_Tabs();
    rooms.texts.LoadFormProperties(form);
    LoadControls();
    subjects->stepBoxes.LoadDirection();
    subjects->stage.Enter(RunStates::Idle);
    ShowForm();
  }
  if (!subjects->stage.Ending()) {
    subjects->news.Send_SystemInfo();
    subjects->stage.LetEventsIn();
    subjects->layout.Resize();
  }
  rooms.platform.shell.Hourglass(false);
  if (!subjects->stage.Ending())
    form.IdleTimer.SetRunning(true);
}

void Measurements::LoadControls() {
  subjects->viewMenu.LoadLook();
  subjects->layout.Resize(); // places the grid below the tabs
  subjects->layout.TabStrip1_Click();
  for (int i = 0; i < form.tbControlBar.Count(); ++i) // the bar's table row has no column for its buttons' tips
    form.tbControlBar.SetButtonTip(i, rooms.texts.GetText("T_" + form.tbControlBar.Buttons(i).Key));
  // On and off, as the look of another user's session is stored.
  form.mnuMessaging.SetVisible(rooms.state.run.UserLevel >= levels::Administrator);
  // What these open is not built yet.
  for (Menu* entry : {&form.mnuObsEdit, &form.mnuMessaging, &form.mnuHelpTopics, &form.mnuAbout})
    entry->SetEnabled(false);
  subjects->stepBoxes.ReadPrevious();
  subjects->stepBoxes.Validate_Step();
  subjects->stepBoxes.Validate_Station();
  subjects->gridDepth.ValidateGridDepth();
  subjects->keyPictures.Init_KeyTables();
  subjects->setupChoice.Load_TestSetupNames();
  subjects->stepBoxes.ShowUnitLabel();
}

void Measurements::ShowForm() {
  auto& shell = rooms.platform.shell;
  subjects->status.SetCaption();
  shell.Load(form);
  form.Loaded = true;
  shell.Show(form);
  // The first SET UNITS finds no connection, but its wait is part of the start: the form is painted in it. The sound
  // device can wait for that, too.
  subjects->news.SendUnits();
  if (!subjects->stage.Ending()) // closed during the wait: nothing more is loaded
    LoadOtherForms();
}

void Measurements::LoadOtherForms() {
  rooms.platform.sound.Open_SoundDevice();
  rooms.messages.LoadForm();
  subjects->asking.LeaveInSight(form.Grid);
  subjects->asking.NumericPrompt.Load();
  subjects->asking.TextPrompt.Load();
  rooms.socket.Load();
  subjects->keyPictures.LoadViews();
  subjects->keyPictures.Show_KeyForms();
  subjects->status.SetButtons(true, false, false);
  subjects->gridHead.Format_GridHeader();
}

} // namespace trekor
