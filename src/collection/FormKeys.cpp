#include "collection/FormKeys.h"

#include "values/KeyCodes.h"

namespace trekor {

bool FormKeys::Form_KeyDown(int keyCode, int shift) {
  if (ctx.fields.loading || ctx.fields.ending)
    return false;
  const bool inRun = ctx.Flags().RunState != RunStates::Idle;
  if (keyCode == keys::NumLock)
    KeepNumLock();
  if (keyCode == keys::F11) {
    ctx.Send("EVENT CLICK");
    return true;
  }
  if (!inRun)
    return IdleKey(keyCode, shift);
  ring.Put(keyCode, shift);
  return true;
}

// A lock key that is on goes off when it is released, on some systems.
void FormKeys::Form_KeyUp(int keyCode) {
  if (keyCode == keys::NumLock)
    KeepNumLock();
}

// From the moment when a start has saved the key's state.
void FormKeys::KeepNumLock() {
  if (ctx.Flags().RunState != RunStates::Idle || ctx.fields.NumLockAtStart)
    asking.FreezeNumLock();
}

bool FormKeys::IdleKey(int keyCode, int shift) {
  const bool increasing = ctx.Position().DmiIncreasing;
  if (keyCode == keys::F2)
    run.Start_Run();
  if (keyCode == keys::Delete)
    keyPictures.RemoveSelectedKey();
  const bool turns = shift != 0 && (keyCode == keys::Up ? !increasing : keyCode == keys::Down && increasing);
  if (turns)
    ctx.form.UpDnPicture.Click(); // which does nothing while it is disabled
  // Ctrl+Shift+M will open the message editor here when the form store has not taken the key.
  return ctx.rooms.texts.FormKeyDown(ctx.form, keyCode, shift) || keyCode == keys::F2;
}

void FormKeys::tbControlBar_ButtonClick(const std::string& key) {
  const RunStates state = ctx.Flags().RunState;
  if (key == "play" && (state == RunStates::Idle || state == RunStates::Paused))
    Form_KeyDown(keys::F2, 0);
  else if (key == "pause" && state == RunStates::Running)
    Form_KeyDown(keys::F3, 0);
  else if (key == "stop" && (state == RunStates::Running || state == RunStates::Paused))
    Form_KeyDown(keys::F4, 0);
  else if (key == "Camera1")
    Form_KeyDown(keys::F11, 0);
}

void FormKeys::Form_Activate() {
  KeepNumLock();
}

} // namespace trekor
