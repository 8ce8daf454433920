#include "collection/GridDepthBox.h"

#include "values/EntryCheck.h"

namespace trekor {

namespace {
constexpr double SmallestDepth = 5, LargestDepth = 100; // rows; the tip says 2. Kept: no buffer in the field is smaller
} // namespace

void GridDepthBox::Wire() {
  box.OnLostFocus = [this] {
    if (stage.AtRest())
      TakeTyped();
  };
}

void GridDepthBox::TakeTyped() {
  if (box.Edited())
    ValidateGridDepth();
}

void GridDepthBox::ValidateGridDepth() {
  auto depth = static_cast<std::int16_t>(rows.Depth());
  CheckEntry(&depth, box, SmallestDepth, LargestDepth, entryGuard, false, false);
  rows.SetDepth(depth);
}

} // namespace trekor
