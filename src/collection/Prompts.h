// The two modal prompts: one box each, a title that says what is asked. Enter and Tab close with the box as it stands;
// Esc and F4 put the old text back first, so that only an emptied box cancels.
#pragma once

#include "forms/Form.h"
#include "platform/Platform.h"
#include "texts/Texts.h"

#include <string>

namespace trekor {

struct PromptForm : Form {
  explicit PromptForm(const std::string& formName) : Form(formName) {}
  TextBox txtBox{*this, "txtBox"};
};

class Prompt {
public:
  Prompt(const std::string& formName, Platform& platform, TextDatabase& texts);
  void Load();
  void Unload();
  // Shows the box with a first text and returns what stands in it when the form closes, not trimmed.
  std::string Ask(const std::string& title, const std::string& first, int maxLength);
  PromptForm form;

private:
  bool Key(int keyCode, int shift);
  void GiveUp(); // the old text, and away
  Platform& platform;
  TextDatabase& texts;
  std::string before; // what the box held when it got the focus
};

} // namespace trekor
