#include "texts/YesNoPrompt.h"

#include "values/KeyCodes.h"

namespace trekor {

YesNoPrompt::YesNoPrompt(const std::string& formName, Platform& machine, TextDatabase& textDatabase, Preset first)
    : form(formName), platform(machine), texts(textDatabase), preset(first) {
  form.OnKeyDown = [this](int keyCode, int shift) { return Key(keyCode, shift); };
  form.OnQueryUnload = [this] {
    Close(false);
    return false; // hidden only, for the next question
  };
  form.CmdYes.OnClick = [this] { Close(true); };
  form.CmdNo.OnClick = [this] { Close(false); };
}

bool YesNoPrompt::Ask(const std::string& subject) {
  if (form.Shown)
    return false; // asked from within its own showing
  texts.LoadForm(form);
  form.Subject.SetCaption(subject);
  answer = false;
  platform.shell.SetFocus(preset == Preset::Yes ? form.CmdYes : form.CmdNo);
  platform.shell.ShowModal(form);
  return answer;
}

// Enter presses the button that has the focus.
bool YesNoPrompt::Key(int keyCode, int shift) {
  if (texts.FormKeyDown(form, keyCode, shift))
    return true;
  if (keyCode != keys::Esc && keyCode != keys::F4)
    return false;
  Close(false);
  return true;
}

void YesNoPrompt::Close(bool yes) {
  if (!form.Shown)
    return;
  answer = yes;
  platform.shell.Hide(form);
}

} // namespace trekor
