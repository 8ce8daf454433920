// Questions to the operator: the title of each prompt, what its box shows at first, what stands below it, and what the
// answer changes.
#pragma once

#include "collection/NumLock.h"
#include "collection/Prompt.h"
#include "setup/TestSetup.h"
#include "values/Station.h"

#include <string>

namespace trekor {

class Asking {
public:
  Asking(Platform& platform, TextDatabase& texts, const TestSetup& setup, Station& keyStation, NumLock& numLock);
  // The prompts leave the head and the newest row of this grid in sight.
  void LeaveInSight(const Control& grid) { NumericPrompt.form.InSight = TextPrompt.form.InSight = &grid; }

  // Asks for the station of an event. False when the box was emptied; Esc keeps the station of KeyStation.
  bool Ask_EventStation(int obs);
  // The answer, trimmed; empty when the box was emptied.
  std::string Ask_Number(int obs);
  std::string Ask_Text(int obs);
  // The text of a prompt for a box of the form, not trimmed; empty when it was emptied. Esc answers with the text of
  // the box.
  std::string AskBoxNumber(const std::string& caption, const std::string& text);
  std::string AskBoxText(const std::string& caption, const std::string& text);

  // Stores the answer for an Integer or a Float as the value of the observation. An Integer is converted to 16 bits; a
  // text that does not fit or is no number leaves the old value. A Float is rounded to single precision.
  static void TakeNumber(ClassObservation& observation, const std::string& answer);

  Prompt NumericPrompt, TextPrompt;

private:
  std::string WordEnter() const;
  Question OfObservation(int obs, const std::string& limits) const;
  Question OfBox(const std::string& caption, const std::string& text) const;
  std::string Ask(Prompt& prompt, const Question& question);

  TextDatabase& texts;
  const TestSetup& setup;
  Station& KeyStation;
  NumLock& numLock;
};

} // namespace trekor
