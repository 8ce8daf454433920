#include "collection/NumLock.h"

#include <utility>

namespace trekor {

void NumLock::SaveAtStart() {
  if (Frozen())
    NumLockAtStart = keyboard.NumLock();
}

// At the end of a run or of a start, however it ends. A start that had not read the key yet has not changed it.
void NumLock::Restore() {
  const auto before = std::exchange(NumLockAtStart, std::nullopt);
  if (before && Frozen())
    Set_NumLock(*before);
}

void NumLock::FreezeNumLock() {
  if (Frozen())
    Set_NumLock(true);
}

// The state is read first: a press is a real key event, which comes back to the form.
void NumLock::Set_NumLock(bool on) {
  if (keyboard.NumLock() != on)
    keyboard.PressNumLock();
}

} // namespace trekor
