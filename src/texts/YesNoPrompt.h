// A modal question with two answers. Closing the form in any other way than by the button Yes is a no.
#pragma once

#include "texts/TextDatabase.h"

#include <string>

namespace trekor {

struct YesNoForm : Form {
  explicit YesNoForm(const std::string& formName) : Form(formName) {}
  Label Question{*this, "Question"}; // its words are part of the stored look
  Label Subject{*this, "Subject"};   // what the question is about
  CommandButton CmdYes{*this, "CmdYes"}, CmdNo{*this, "CmdNo"};
};

// The button that has the focus when the form comes up, and so takes an Enter that is pressed without reading.
enum class Preset { Yes, No };

class YesNoPrompt {
public:
  YesNoPrompt(const std::string& formName, Platform& platform, TextDatabase& texts, Preset preset);
  // True: yes. The form is loaded at the first question.
  bool Ask(const std::string& subject);
  // Hides the form, when it is shown, as a no does.
  void GiveWay() { Close(false); }
  void Unload() { texts.UnloadForm(form); }
  YesNoForm form;

private:
  bool Key(int keyCode, int shift);
  void Close(bool yes);

  Platform& platform;
  TextDatabase& texts;
  Preset preset;
  bool answer = false;
};

} // namespace trekor
