#include "collection/Boxes.h"

#include "values/KeyCodes.h"
#include "values/Text.h"

#include <utility>

namespace trekor {

void Boxes::Wire() {
  Wire(controls.Texts6, 6);
  Wire(controls.Texts7, 7);
  Wire(controls.Texts8, 8);
}

void Boxes::Wire(TextBox& box, int index) {
  box.OnGotFocus = [this, &box, index] {
    FocusIndex = index;
    box.SelectAll();
  };
  box.OnLostFocus = [this, &box, index] { LostFocus(box, index); };
  // Opens the list of a box that has one. A failure is not reported.
  box.OnDblClick = [this] { SendKeysObject.SendKeys("%{DOWN}", false); };
  box.OnKeyDown = [this](int keyCode, int) { return NationalKey(keyCode); };
  box.OnKeyPress = [this](char32_t typed) { return national != 0 ? std::exchange(national, 0) : typed; };
}

void Boxes::LostFocus(const TextBox& box, int index) {
  FocusIndex = -1;
  if (!box.Edited() || !stage.AtRest())
    return;
  if (index == 6)
    stepBoxes.Validate_Station();
  if (index == 7)
    stepBoxes.Validate_Step();
}

// With Danish as language the keys that a Danish keyboard labels with its own letters give these, whatever the layout.
bool Boxes::NationalKey(int keyCode) {
  const bool danish = Upper(Language) == "DANISH";
  const char32_t letter = keyCode == keys::Backquote      ? U'\u00C6'
                          : keyCode == keys::Quote        ? U'\u00D8'
                          : keyCode == keys::CloseBracket ? U'\u00C5'
                                                          : 0;
  national = danish ? letter : 0;
  return false; // the character follows
}

} // namespace trekor
