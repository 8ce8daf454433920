// Questions to the operator: what each prompt is titled, what stands in its box at first, what becomes of the answer.
// NumLock belongs here as well: digits of the pad are what is typed into them.
#pragma once

#include "collection/Prompts.h"
#include "collection/RunContext.h"

#include <string>

namespace trekor {

class Asking {
public:
  explicit Asking(RunContext& context);

  // False when the box was emptied; Esc goes on with the station that KeyStation has.
  bool Ask_EventStation(int obs);
  // The trimmed box; empty when it was emptied.
  std::string Ask_Number(int obs);
  std::string Ask_Text(int obs);
  // Boxes 6, 7 and 8 of Texts. An emptied prompt changes nothing and sends nothing; Esc answers with the old text,
  // which counts as an answer.
  void EnterHugeNumber(int index);
  void EnterHugeText(int index);

  // The answer for an Integer or a Float becomes the observation's value. An Integer passes a 16-bit conversion: what
  // does not fit or is no number leaves the old value. A Float passes single precision.
  static void TakeNumber(ClassObservation& observation, const std::string& answer);

  // With "Freeze NumLock" ticked.
  void FreezeNumLock();
  bool NumLockFrozen() const { return ctx.form.chkNumLockFreeze.Value() != 0; }
  void Set_NumLock(bool on);

  Prompt NumericPrompt, TextPrompt;

private:
  std::string Title(int obs) const;
  std::string WordEnter() const;
  std::string LabelCaption(int index) const;
  std::string Ask(Prompt& prompt, const std::string& title, const std::string& first, int maxLength);

  RunContext& ctx;
};

// Box `index` of Texts (6 station, 7 step, 8 previous).
TextBox& TextsBox(MeasurementsForm& form, int index);

} // namespace trekor
