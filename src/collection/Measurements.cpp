#include "collection/Measurements.h"

#include "collection/Parts.h"

namespace trekor {

Measurements::Measurements(MeasurementsForm& mainForm, RunRooms runRooms)
    : form(mainForm), rooms(runRooms), p(std::make_unique<Parts>(mainForm, runRooms)) {
  p->grids.keyCaption = [this](int code) { return p->keyPictures.KeyCaption(code); };
  rooms.comma.AsciiFileProgress = [this](int percent) { AsciiFileProgress(percent); };
  rooms.fileNew.Assist = [this](int number) { p->feedback.Assist(number); };
  WireEvents();
}

Measurements::~Measurements() = default;

bool Measurements::Form_KeyDown(int keyCode, int shift) {
  return p->formKeys.Form_KeyDown(keyCode, shift);
}

// No control gets a typed letter during a run, nor while one is being announced: the first key of an eager operator
// would change the step that the session keeps.
bool Measurements::Form_KeyPress(char32_t) {
  return rooms.state.run.RunState != RunStates::Idle || p->ctx.fields.starting;
}

void Measurements::Check_DMI() {
  p->stepping.Check_DMI();
}

void Measurements::Set_UpDnIcon() {
  p->stepping.Set_UpDnIcon();
}

void Measurements::Prepare_File() {
  p->fileMenu.Prepare_File();
}

void Measurements::mnuNew_Click() {
  p->fileMenu.mnuNew_Click();
}

void Measurements::mnuClose_Click() {
  p->fileMenu.mnuClose_Click();
}

void Measurements::mnuExit_Click() {
  p->ctx.fields.leaveLater = p->ctx.fields.preparing;
  if (unloadMainForm && !p->ctx.fields.preparing)
    unloadMainForm();
}

void Measurements::SetUnitLabels() {
  p->stepping.SetUnitLabels();
}

void Measurements::SetCaption() {
  p->feedback.SetCaption();
}

void Measurements::EnterHugeNumber(int index) {
  p->asking.EnterHugeNumber(index);
}

void Measurements::EnterHugeText(int index) {
  p->asking.EnterHugeText(index);
}

void Measurements::Idle_Tick() {
  p->idle.Idle_Tick();
  if (p->ctx.fields.leaveLater && !p->ctx.fields.preparing)
    mnuExit_Click();
}

void Measurements::AsciiFileProgress(int percent) {
  p->feedback.AsciiFileProgress(percent);
}

void Measurements::PrepareStation(double km) {
  rooms.state.position.KeyStation.SetDefault(km);
  form.Texts6.SetText(rooms.state.position.KeyStation.Text());
}

void Measurements::StopAndClose() {
  p->run.StopAndClose();
}

void Measurements::UnloadForms() {
  p->frmBars.Loaded = false;
  p->asking.TextPrompt.Unload();
  p->asking.NumericPrompt.Unload();
  rooms.fileNew.GiveWay();
  rooms.messages.UnloadForm();
  rooms.fileNew.Unload();
  rooms.platform.sound.Close_SoundDevice();
  p->keyPictures.Unload();
}

} // namespace trekor
