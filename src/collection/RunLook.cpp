#include "collection/RunLook.h"

namespace trekor {

void RunLook::ShowRunning() {
  shell.CloseBoxes();
  screen.KeepOn(true);
  grid.picture.SetKeysWanted(true);
  grid.picture.SetSelectionMarks(false);
  shell.SetFocus(grid.picture);
  shell.BringToFront(grid.picture);
  layout.CoverTabs();
  status.SetButtons(false, true, true);
  status.SetMenusEnabled(false);
  layout.Resize();
}

void RunLook::ShowPaused() {
  grid.picture.SetRow(grid.CurrentRow);
  grid.picture.SetCol(0); // as CurrentCol, so that the next tick sees no change of cell
  grid.picture.SetColSel(grid.setup.ObsCount());
  grid.picture.SetSelectionMarks(true);
  shell.SetFocus(grid.picture);
  status.SetButtons(true, false, true);
}

void RunLook::ShowResumed() {
  grid.picture.SetCol(0);
  grid.picture.SetSelectionMarks(false);
  status.SetButtons(false, true, true);
}

void RunLook::UncoverTabs() {
  layout.UncoverTabs();
  layout.Resize();
}

void RunLook::ShowStopping() {
  UncoverTabs();
  grid.picture.SetSelectionMarks(false);
  status.SetButtons(true, false, false);
}

void RunLook::ShowStopped() {
  screen.KeepOn(false);
  grid.picture.SetKeysWanted(false);
  status.SetMenusEnabled(true);
}

} // namespace trekor
