// NumLock, as runs and prompts are typed on the pad's digits. With "Freeze NumLock" ticked it is on during a run and at
// every prompt, and gets its old state back afterwards.
#pragma once

#include "forms/Controls.h"
#include "platform/Keyboard.h"

#include <optional>

namespace trekor {

class NumLock {
public:
  NumLock(Keyboard& keyboard, const CheckBox& freeze) : keyboard(keyboard), freeze(freeze) {}

  void SaveAtStart();
  // Whether a start has saved the state and its run has not restored it yet.
  bool Saved() const { return NumLockAtStart.has_value(); }
  void Restore();
  void FreezeNumLock();

private:
  bool Frozen() const { return freeze.Value() != 0; }
  void Set_NumLock(bool on);

  Keyboard& keyboard;
  const CheckBox& freeze;
  std::optional<bool> NumLockAtStart;
};

} // namespace trekor
