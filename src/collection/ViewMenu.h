// How large the grid is drawn, and whether by the colours of the day or of the night: the operator's choice in the menu
// View, also during a run. Kept as the ticks of the menu, which are part of the form's stored look.
#pragma once

#include "collection/MeasurementsForm.h"
#include "platform/Shell.h"

namespace trekor {

class ViewMenu {
public:
  ViewMenu(MeasurementsForm& form, Shell& shell) : form(form), shell(shell) {}
  void Wire();
  // Shows what the stored ticks say; one size is ticked afterwards, the given one when the database names none.
  void LoadLook();
  // The keys that stand beside the entries. Only asked while no run is on, and none of them can carry an observation.
  // True: the key is taken.
  bool Key(int keyCode, int shift);

private:
  int SizeTicked() const; // place in GridSizes
  void ShowSize(int size);
  void ToggleNight();

  MeasurementsForm& form;
  Shell& shell;
};

} // namespace trekor
