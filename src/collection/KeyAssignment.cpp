#include "collection/KeyAssignment.h"

#include "values/Text.h"

namespace trekor {

void KeyAssignment::Wire() {
  WireKeys(form.fxgKeyBoard, true);
  WireKeys(form.fxgKeyPad, true);
  WireKeys(pictures.frmKeyBoard.fxgKeyBoard, false);
  WireKeys(pictures.frmKeyPad.fxgKeyPad, false);
  grid.picture.OnPickUp = [this](int row, int col) { return PickUpHead(row, col); };
}

// On a docked picture the key that was clicked stays marked, as Delete takes it wherever the focus is.
void KeyAssignment::WireKeys(Grid& keys, bool docked) {
  keys.OnPickUp = [this, &keys, docked](int row, int col) {
    if (docked)
      keys.SetSelectionMarks(true);
    return PickUp(grid.setup.KeyToObs(pictures.KeyCode(keys, row, col)));
  };
  keys.OnDrop = [this, &keys](const Grid& source, int row, int col) { Drop(source, keys, row, col); };
}

// The picture to drag, "" when there is nothing to take.
std::string KeyAssignment::PickUp(int obs) {
  DraggedObs = grid.setup.Has(obs) ? obs : -1;
  if (DraggedObs == -1)
    return "";
  const ClassObservation& o = grid.setup.Observations(obs);
  draggedParID = o.ObsParID;
  return o.ObsIcon();
}

// An observation that has a key is picked up there.
std::string KeyAssignment::PickUpHead(int row, int col) {
  const bool free = row == RunGrid::IconRow && grid.setup.Has(col) && grid.setup.Observations(col).KeyCode() == -1;
  return PickUp(free ? col : -1);
}

bool KeyAssignment::PickedUpIsThere() const {
  return grid.setup.Has(DraggedObs) && grid.setup.Observations(DraggedObs).ObsParID == draggedParID;
}

void KeyAssignment::Drop(const Grid& source, const Grid& keys, int row, int col) {
  if (!stage.Ending() && PickedUpIsThere()) {
    const int code = pictures.KeyCode(keys, row, col);
    if (MayMove(source, keys, code))
      MoveKey(code);
    MarkHead();
  }
  DraggedObs = -1;
}

// From the keyboard to the keypad, and back, nothing is moved: there Delete comes first.
bool KeyAssignment::MayMove(const Grid& source, const Grid& keys, int code) const {
  const bool known = &source == &grid.picture || pictures.SameKeys(source, keys);
  return known && grid.setup.Observations(DraggedObs).MayTakeKey(code);
}

// The icon goes first, as the pictures find its key by the observation's code.
void KeyAssignment::MoveKey(int code) {
  ClassObservation& o = grid.setup.Observations(DraggedObs);
  pictures.RemoveKey(DraggedObs);
  grid.setup.SetKeyToObs(o.KeyCode(), -1);
  o.SetKeyCode(code);
  grid.setup.Store_SetupKey(code, DraggedObs);
  grid.setup.SetKeyToObs(code, DraggedObs);
  pictures.AddKey(DraggedObs);
  grid.picture.SetText(RunGrid::KeyRow, DraggedObs, pictures.KeyText(code));
}

// After a drop that was refused, too. In a run the current cell is the run's.
void KeyAssignment::MarkHead() {
  if (Trim(grid.picture.Text(RunGrid::KeyRow, DraggedObs)).empty())
    grid.picture.SetText(RunGrid::KeyRow, DraggedObs, KeyPictures::NoCaption);
  if (stage.InRun())
    return;
  grid.picture.SetRow(RunGrid::KeyRow);
  grid.picture.SetCol(DraggedObs);
}

void KeyAssignment::RemoveSelectedKey() {
  const int tab = form.TabStrip1.Selected();
  if (tab != Layout::TabKeyboard && tab != Layout::TabKeypad)
    return;
  const Grid& keys = tab == Layout::TabKeyboard ? form.fxgKeyBoard : form.fxgKeyPad;
  const int code = pictures.KeyCode(keys, keys.Row(), keys.Col());
  const int obs = grid.setup.KeyToObs(code);
  if (!grid.setup.Has(obs))
    return;
  pictures.RemoveKey(obs);                        // while the observation still has the code
  grid.picture.SetText(RunGrid::KeyRow, obs, ""); // until the grid is set up anew
  grid.setup.Clear_SetupKey(obs);
  grid.setup.Observations(obs).SetKeyCode(-1);
  grid.setup.SetKeyToObs(code, -1);
}

} // namespace trekor
