// Key strings, sent as key presses of the machine's keyboard.
//
//   "a"            one key; a capital is sent as its plain key
//   "{DOWN}"       a key by its name; "{F2 3}" three times
//   "%(ab)"        a and b with Alt held; "+" is Shift, "~" Control, "%" Alt, and they nest
//   "%a"           Alt down and up, then a alone: a modifier without brackets does not act on the next key
//
// A string stops at its first fault; keys held down are released, and what was sent before stays sent.
#pragma once

#include "platform/Platform.h"

#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace trekor {

// Why sending stopped; number 0 when it did not. Callers may ignore it.
struct KeyError {
  int number = 0;
  std::string description, source;
  bool Failed() const { return number != 0; }
};

class cSendKeys {
public:
  explicit cSendKeys(const Platform& platform); // which outlives it
  // Positions in the descriptions count characters from 1. `wait` has no effect: keys are never waited for.
  KeyError SendKeys(std::string_view text, bool wait);
  // Down and up, `count` times (never for 0 and less). Of an unknown name the first character is sent.
  KeyError KeyPress(std::string_view key, int count);
  void KeyDown(int code) { keyboard.KeyDown(code); }
  void KeyUp(int code) { keyboard.KeyUp(code); }
  // The key that writes the first character of the text, as Keyboard::ScanKey; 0 for the empty text.
  int KeyCode(std::string_view character);

private:
  Keyboard& keyboard;
  Process& process;
  std::map<std::string, int, std::less<>> KeyNames; // to virtual-key codes, in capitals; found whatever their case
};

} // namespace trekor
