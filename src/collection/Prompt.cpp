#include "collection/Prompt.h"

#include "values/KeyCodes.h"

namespace trekor {

Prompt::Prompt(const std::string& formName, Platform& machine, TextDatabase& textDatabase)
    : form(formName), platform(machine), texts(textDatabase) {
  form.txtBox.OnGotFocus = [this] {
    before = form.txtBox.Text();
    form.txtBox.SelectAll();
  };
  form.OnKeyDown = [this](int keyCode, int shift) { return Key(keyCode, shift); };
  form.OnQueryUnload = [this] {
    GiveUp();
    return false; // hidden only, for the next question
  };
}

bool Prompt::Key(int keyCode, int shift) {
  if (texts.FormKeyDown(form, keyCode, shift))
    return true;
  if (keyCode == keys::Esc || keyCode == keys::F4)
    GiveUp();
  else if (keyCode == keys::Enter || keyCode == keys::Tab)
    platform.shell.Hide(form);
  else
    return false;
  return true;
}

void Prompt::GiveUp() {
  form.txtBox.SetText(before);
  platform.shell.Hide(form);
}

std::string Prompt::Ask(const Question& question) {
  form.SetCaption(question.title);
  form.SetRemark(question.remark);
  form.txtBox.MaxLength = question.maxLength;
  form.txtBox.SetText(question.first);
  before = question.first; // when the box has the focus already, OnGotFocus does not come
  form.txtBox.SelectAll();
  platform.shell.SetFocus(form.txtBox);
  platform.shell.ShowModal(form);
  return form.txtBox.Text();
}

} // namespace trekor
