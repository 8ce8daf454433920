// The keys that wait for a tick: a ring of 16, filled in the key event and emptied one key a tick, so that no key is
// lost while a row is stored. The 16th unread key empties the ring. Kept: an operator does not press as many while
// a row is stored. If he does, what was lost is counted for him to see.
#pragma once

#include <array>

namespace trekor {

struct KeyRing {
  static constexpr int Size = 16;
  std::array<int, Size> KeyCodes{}, KeyShifts{};
  int KeyHead = 0, KeyTail = 0; // read and write index
  int Lost = 0;                 // keys, since the ring was cleared

  bool Empty() const { return KeyHead == KeyTail; }
  void Put(int code, int shift) {
    KeyCodes[static_cast<std::size_t>(KeyTail)] = code;
    KeyShifts[static_cast<std::size_t>(KeyTail)] = shift;
    KeyTail = (KeyTail + 1) % Size;
    if (Empty())
      Lost += Size;
  }
  int Front() const { return KeyCodes[static_cast<std::size_t>(KeyHead)]; }
  void Advance() { KeyHead = (KeyHead + 1) % Size; }
  void Clear() { KeyHead = KeyTail = Lost = 0; }
};

} // namespace trekor
