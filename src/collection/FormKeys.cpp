#include "collection/FormKeys.h"

#include "values/KeyCodes.h"

namespace trekor {

bool FormKeys::Form_KeyDown(int keyCode, int shift) {
  if (stage.Loading() || stage.Ending())
    return false;
  const bool inRun = stage.InRun();
  if (keyCode == keys::NumLock)
    KeepNumLock();
  if (keyCode == keys::F11) {
    news.SendClick();
    return true;
  }
  if (!inRun)
    return idleKeys.IdleKey(keyCode, shift);
  ring.Put(keyCode, shift);
  return true;
}

// No control gets a typed letter during a run or while one is announced: an early first key would change the step that
// the session stores.
bool FormKeys::Form_KeyPress(char32_t) {
  return !stage.AtRest();
}

// On some systems a lock key that is on goes off at its release.
void FormKeys::Form_KeyUp(int keyCode) {
  if (keyCode == keys::NumLock)
    KeepNumLock();
}

// From the moment when a start has saved the key's state.
void FormKeys::KeepNumLock() {
  if (stage.InRun() || numLock.Saved())
    numLock.FreezeNumLock();
}

void FormKeys::Form_Activate() {
  KeepNumLock();
}

void FormKeys::tbControlBar_ButtonClick(const std::string& key) {
  if (key == "play" && !stage.Running())
    Form_KeyDown(keys::F2, 0);
  else if (key == "pause" && stage.Running())
    Form_KeyDown(keys::F3, 0);
  else if (key == "stop" && stage.InRun())
    Form_KeyDown(keys::F4, 0);
  else if (key == "Camera1")
    Form_KeyDown(keys::F11, 0);
}

} // namespace trekor
