// The boxes Station, Step and Previous, and the box of the buffer size: focus, national keys, checks. A box that is
// left is checked when the operator has changed it, and in idle alone: the focus wanders for many a reason, and what
// the check of the station sends sets the vehicle's count. A start takes the boxes as they stand.
#pragma once

#include "collection/Asking.h"
#include "collection/RunContext.h"
#include "collection/Stepping.h"

namespace trekor {

class Boxes {
public:
  Boxes(RunContext& context, Stepping& stepping) : ctx(context), stepping(stepping) {}
  void Wire();
  void ValidateGridDepth();

private:
  void Wire(TextBox& box, int index);
  void LostFocus(int index);
  bool Settles(const TextBox& box) const;
  bool NationalKey(int keyCode);

  RunContext& ctx;
  Stepping& stepping;
  bool entryGuard = true;
  std::string kept;      // what the box held when it got the focus
  char32_t national = 0; // the letter that the key now going down stands for
};

} // namespace trekor
