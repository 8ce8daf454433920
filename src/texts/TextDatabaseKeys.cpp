// The keys that every form shares.
#include "texts/FormTable.h"
#include "texts/TextDatabase.h"
#include "values/Text.h"

namespace trekor {

namespace {

constexpr int CtrlShift = 3; // with Alt the same letters are other chords

// The check box with which an administrator comes back in must never be locked or hidden.
constexpr const char* AlwaysInReach = "AdministratorCheck";

bool FlagChord(Control& control, int keyCode) {
  std::string tag = control.Tag();
  switch (keyCode) {
  case 'D':
    AddFlag(tag, DisabledForUsers);
    break;
  case 'E':
    BlankFlag(tag, DisabledForUsers);
    break;
  case 'H':
    AddFlag(tag, HiddenForUsers);
    break;
  case 'S':
    BlankFlag(tag, HiddenForUsers);
    break;
  default:
    return false;
  }
  control.SetTag(tag);
  if (keyCode == 'D' || keyCode == 'E')
    control.SetEnabled(keyCode == 'E');
  else
    control.SetVisible(keyCode == 'S');
  return true;
}

} // namespace

bool TextDatabase::FormKeyDown(Form& form, int keyCode, int shift) {
  Control* active = form.ActiveControl;
  if (shift != CtrlShift || state.run.UserLevel < levels::Administrator || !active ||
      SameText(active->Name(), AlwaysInReach))
    return false;
  return FlagChord(*active, keyCode);
}

} // namespace trekor
