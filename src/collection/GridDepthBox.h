// The box "Buffer Size": how many rows the grid holds before the oldest is stored.
#pragma once

#include "collection/RowBuffer.h"
#include "collection/RunStage.h"
#include "forms/Controls.h"

namespace trekor {

class GridDepthBox {
public:
  GridDepthBox(TextBox& box, RowBuffer& rows, const RunStage& stage) : box(box), rows(rows), stage(stage) {}
  // Checked like the other boxes of the form: on leaving, when the operator has changed it, in idle.
  void Wire();
  void ValidateGridDepth();
  // For a start, which may come while the box still has the focus.
  void TakeTyped();

private:
  TextBox& box;
  RowBuffer& rows;
  const RunStage& stage;
  bool entryGuard = true;
};

} // namespace trekor
