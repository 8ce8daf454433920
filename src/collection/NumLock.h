// The lock key of the pad, whose digits are what a run and its prompts are typed with. With "Freeze NumLock" ticked it
// is on during a run and at every prompt, and has its old state back afterwards.
#pragma once

#include "forms/Controls.h"
#include "platform/Keyboard.h"

#include <optional>

namespace trekor {

class NumLock {
public:
  NumLock(Keyboard& keyboard, const CheckBox& freeze) : keyboard(keyboard), freeze(freeze) {}

  void SaveAtStart();
  // A start has saved the state, and its run has not given it back yet.
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
