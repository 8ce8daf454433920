#include "collection/OptionsMenu.h"

namespace trekor {

// Only in idle, and not in the middle of a file's making or closing, which would begin with one option and end with
// another.
bool OptionsMenu::MayOpen() const {
  return stage.AtRest() && !stage.Loading() && !stage.Asking() && !stage.Preparing() && !stage.Closing() &&
         !stage.Ending();
}

void OptionsMenu::mnuOptions_Click() {
  if (!MayOpen())
    return;
  stepBoxes.KeepBoxes();
  shown = false;
  dialog.ShowDialog();
  if (!state.OptionsChanged || stage.Ending())
    return;
  ShowChange();
  stepBoxes.SetUnitLabels(); // sends the units, too: control programs hear them twice
  if (!stage.Ending())
    news.SendUnits();
}

void OptionsMenu::GiveWay() {
  if (!dialog.form.Shown)
    return;
  dialog.GiveWay();
  if (state.OptionsChanged)
    ShowChange(); // before the start reads the boxes
}

// Before anything is sent, which pumps: a start would take the old numbers for the new unit.
void OptionsMenu::ShowChange() {
  if (shown)
    return;
  shown = true;
  stepBoxes.RenewBoxes();
}

} // namespace trekor
