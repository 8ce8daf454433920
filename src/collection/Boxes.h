// The boxes Station, Step and Previous under the operator's hand: focus, national keys, checks. A box that is left is
// checked when the operator has changed it, and in idle alone: the focus wanders for many a reason, and what the check
// of the station sends sets the vehicle's count. A start takes the boxes as they stand.
#pragma once

#include "collection/StepBoxes.h"
#include "services/cSendKeys.h"

namespace trekor {

class Boxes {
public:
  Boxes(const StepControls& controls, StepBoxes& stepBoxes, const RunStage& stage, cSendKeys& SendKeysObject,
        const CommandLineFlags& command)
      : controls(controls), stepBoxes(stepBoxes), stage(stage), SendKeysObject(SendKeysObject),
        Language(command.Language) {}
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
  int FocusIndex = -1;   // the box of Texts that has the focus; kept, read by nothing yet
  char32_t national = 0; // the letter that the key now going down stands for
};

} // namespace trekor
