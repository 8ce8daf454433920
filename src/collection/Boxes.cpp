#include "collection/Boxes.h"

#include "values/EntryCheck.h"
#include "values/KeyCodes.h"
#include "values/Text.h"

#include <utility>

namespace trekor {

namespace {
constexpr double SmallestDepth = 5, LargestDepth = 100; // the tip says 2: meant so
} // namespace

void Boxes::Wire() {
  Wire(ctx.form.Texts6, 6);
  Wire(ctx.form.Texts7, 7);
  Wire(ctx.form.Texts8, 8);
  ctx.form.txtGridDepth.OnLostFocus = [this] {
    if (Settles(ctx.form.txtGridDepth))
      ValidateGridDepth();
  };
}

void Boxes::Wire(TextBox& box, int index) {
  box.OnGotFocus = [this, &box, index] {
    ctx.fields.FocusIndex = index;
    kept = box.Text();
    box.SelectAll();
  };
  box.OnLostFocus = [this, index] { LostFocus(index); };
  // Opens the list of a box that has one; what the keyboard cannot send is no news to the operator.
  box.OnDblClick = [this] { ctx.rooms.SendKeysObject.SendKeys("%{DOWN}", false); };
  box.OnKeyDown = [this](int keyCode, int) { return NationalKey(keyCode); };
  box.OnKeyPress = [this](char32_t typed) { return national != 0 ? std::exchange(national, 0) : typed; };
}

void Boxes::LostFocus(int index) {
  ctx.fields.FocusIndex = -1;
  if (!Settles(TextsBox(ctx.form, index)))
    return;
  if (index == 6)
    stepping.Validate_Station();
  if (index == 7)
    stepping.Validate_Step();
}

bool Boxes::Settles(const TextBox& box) const {
  return box.Edited() && ctx.Flags().RunState == RunStates::Idle && !ctx.fields.starting;
}

// The keys that a Danish keyboard labels with its own letters give these whatever the layout.
bool Boxes::NationalKey(int keyCode) {
  const bool danish = Upper(ctx.State().command.Language) == "DANISH";
  const char32_t letter = keyCode == keys::Backquote      ? U'\u00C6'
                          : keyCode == keys::Quote        ? U'\u00D8'
                          : keyCode == keys::CloseBracket ? U'\u00C5'
                                                          : 0;
  national = danish ? letter : 0;
  return false; // the character follows
}

void Boxes::ValidateGridDepth() {
  auto depth = static_cast<std::int16_t>(ctx.fields.GridDepth);
  CheckEntry(&depth, ctx.form.txtGridDepth, SmallestDepth, LargestDepth, entryGuard, false, false);
  ctx.fields.GridDepth = depth;
}

} // namespace trekor
