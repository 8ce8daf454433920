// Puts observations on keys and takes them off again. The operator drags an icon with the mouse, from the grid's head
// or from another key, to a key of the on-screen pictures, docked or floating; Delete takes a key from its observation.
// The setup database has it at once, in a run as well: the column is there, only the way to it is new.
#pragma once

#include "collection/KeyPictures.h"
#include "collection/Layout.h"
#include "collection/RunGrid.h"
#include "collection/RunStage.h"

#include <cstdint>
#include <string>

namespace trekor {

class KeyAssignment {
public:
  KeyAssignment(MeasurementsForm& form, KeyPictures& pictures, RunGrid& grid, const RunStage& stage)
      : form(form), pictures(pictures), grid(grid), stage(stage) {}
  void Wire();
  // Delete in idle, on the tab Keyboard or Keypad: takes the key under the cursor from its observation, for good.
  void RemoveSelectedKey();

private:
  void WireKeys(Grid& keys, bool docked);
  std::string PickUp(int obs);
  std::string PickUpHead(int row, int col);
  bool PickedUpIsThere() const;
  void Drop(const Grid& source, const Grid& keys, int row, int col);
  bool MayMove(const Grid& source, const Grid& keys, int code) const;
  void MoveKey(int code);
  void MarkHead();

  MeasurementsForm& form;
  KeyPictures& pictures;
  RunGrid& grid;
  const RunStage& stage;
  // The observation under the mouse, -1 none, and its identity: another setup may be chosen during the drag.
  int DraggedObs = -1;
  std::int32_t draggedParID = 0;
};

} // namespace trekor
