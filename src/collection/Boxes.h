// The boxes Station, Step and Previous: focus, national keys, checks. A box that loses the focus is checked only in
// idle and only when the operator has changed it: the focus often moves without him, and the check of the station sends
// the vehicle's count. A start takes the boxes as they are.
#pragma once

#include "collection/StepBoxes.h"
#include "services/cSendKeys.h"

namespace trekor {

class Boxes {
public:
  Boxes(const StepControls& controls, StepBoxes& stepBoxes, const RunStage& stage, cSendKeys& sendKeys,
        const CommandLineFlags& command)
      : controls(controls), stepBoxes(stepBoxes), stage(stage), SendKeysObject(sendKeys), Language(command.Language) {}
  void Wire();

private:
  void Wire(TextBox& box, int index);
  void LostFocus(const TextBox& box, int index);
  bool NationalKey(int keyCode);

  StepControls controls;
  StepBoxes& stepBoxes;
  const RunStage& stage;
  cSendKeys& SendKeysObject;
  const std::string& Language;
  int FocusIndex = -1;   // the box of Texts that has the focus; kept as state of the form, read by nothing yet
  char32_t national = 0; // the letter of the key that is being pressed, 0 for none
};

} // namespace trekor
