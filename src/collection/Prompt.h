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

struct Question {
  std::string title;
  std::string remark; // below the box: for what, in which limits, where
  std::string first;  // in the box
  int maxLength = 0;  // characters; 0: no limit
};

class Prompt {
public:
  Prompt(const std::string& formName, Platform& platform, TextDatabase& texts);
  void Load() { texts.LoadForm(form); }
  void Unload() { texts.UnloadForm(form); }
  // The text of the box when the form has closed, not trimmed.
  std::string Ask(const Question& question);
  PromptForm form;

private:
  bool Key(int keyCode, int shift);
  void GiveUp(); // restores the old text and hides
  Platform& platform;
  TextDatabase& texts;
  std::string before; // what the box held when it got the focus
};

} // namespace trekor
