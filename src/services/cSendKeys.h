// A small language of key strings, turned into synthetic key presses on the machine's keyboard.
//
//   "a"            one key; a capital is sent as its plain key
//   "{DOWN}"       a key by its name, "{F2 3}" three times
//   "%(ab)"        a and b with Alt held; "+" is Shift, "~" Control, "%" Alt, and they nest
//   "%a"           Alt down and up, and then a alone: a modifier without brackets does not act on what follows it
//
// A run that fails stops there; what it held down goes up first. What was sent before stays sent.
#pragma once

#include "platform/Platform.h"

#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace trekor {

// Why a run or a press ended early; number 0 when it did not. A caller may ignore it.
struct KeyError {
  int number = 0;
  std::string description, source;
  bool Failed() const { return number != 0; }
};

class cSendKeys {
public:
  explicit cSendKeys(const Platform& platform); // which outlives it
  // Positions in the descriptions count characters from 1. `wait` has no effect: the keys are always just handed over.
  KeyError SendKeys(std::string_view text, bool wait);
  // Down and up, `count` times (none for 0 and less). Of a name that is no name the first character is sent.
  KeyError KeyPress(std::string_view key, int count);
  void KeyDown(int code) { keyboard.KeyDown(code); }
  void KeyUp(int code) { keyboard.KeyUp(code); }
  // The key that writes the first character of the text, 0 when there is none.
  int KeyCode(std::string_view character);

private:
  Keyboard& keyboard;
  Process& process;
  std::map<std::string, int, std::less<>> KeyNames; // to virtual-key codes, in capitals; found whatever their case
};

} // namespace trekor
