// A modal prompt: one box, and a title with the question. Enter and Tab close it with the box as it is; Esc and F4
// restore the old text first, so that only an emptied box cancels.
#pragma once

#include "forms/Form.h"
#include "platform/Platform.h"
#include "texts/TextDatabase.h"

#include <string>

namespace trekor {

struct PromptForm : Form {
  explicit PromptForm(const std::string& formName) : Form(formName) {}
  TextBox txtBox{*this, "txtBox"};
};

class Prompt {
public:
  Prompt(const std::string& formName, Platform& platform, TextDatabase& texts);
  void Load() { texts.LoadForm(form); }
  void Unload() { texts.UnloadForm(form); }
  // Shows the box with a first text and returns its text when the form has closed, not trimmed.
  std::string Ask(const std::string& title, const std::string& first, int maxLength);
  PromptForm form;

private:
  bool Key(int keyCode, int shift);
  void GiveUp(); // restores the old text and hides
  Platform& platform;
  TextDatabase& texts;
  std::string before; // what the box held when it got the focus
};

} // namespace trekor
