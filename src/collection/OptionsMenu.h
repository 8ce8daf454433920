// The options as the menu opens them, and what follows from a change: the main form in the new units, and the news to
// the link.
#pragma once

#include "collection/RunNews.h"
#include "collection/RunStage.h"
#include "collection/StepBoxes.h"
#include "options/Options.h"

namespace trekor {

class OptionsMenu {
public:
  OptionsMenu(OptionState& state, const RunStage& stage, StepBoxes& stepBoxes, RunNews& news, Options& dialog)
      : state(state), stage(stage), stepBoxes(stepBoxes), news(news), dialog(dialog) {}
  void mnuOptions_Click();
  // A run of the link begins: its keys must not go to the form, and its units must not change.
  void GiveWay();

private:
  bool MayOpen() const;
  void ShowChange();

  OptionState& state;
  const RunStage& stage;
  StepBoxes& stepBoxes;
  RunNews& news;
  Options& dialog;
  bool shown = false; // the boxes are in the new units already
};

} // namespace trekor
