// Questions to the operator: what each prompt is titled, what stands in its box at first, what becomes of the answer.
#pragma once

#include "collection/NumLock.h"
#include "collection/Prompts.h"
#include "setup/TestSetup.h"
#include "values/Station.h"

#include <string>

namespace trekor {

class Asking {
public:
  Asking(Platform& platform, TextDatabase& texts, const TestSetup& setup, Station& keyStation, NumLock& numLock);

  // False when the box was emptied; Esc goes on with the station that KeyStation has.
  bool Ask_EventStation(int obs);
  // The trimmed box; empty when it was emptied.
  std::string Ask_Number(int obs);
  std::string Ask_Text(int obs);
  // For a box of the form under its caption: what stands in the prompt when it closes, not trimmed. Esc answers with
  // the text of the box.
  std::string AskBoxNumber(const std::string& caption, const std::string& text);
  std::string AskBoxText(const std::string& caption, const std::string& text);

  // The answer for an Integer or a Float becomes the observation's value. An Integer passes a 16-bit conversion: what
  // does not fit or is no number leaves the old value. A Float passes single precision.
  static void TakeNumber(ClassObservation& observation, const std::string& answer);

  Prompt NumericPrompt, TextPrompt;

private:
  std::string Title(int obs) const;
  std::string WordEnter() const;
  std::string Ask(Prompt& prompt, const std::string& title, const std::string& first, int maxLength);

  TextDatabase& texts;
  const TestSetup& setup;
  Station& KeyStation;
  NumLock& numLock;
};

} // namespace trekor
