// The boxes Station, Step and Previous, and the box of the buffer size: focus, national keys, checks.
#pragma once

#include "collection/RunContext.h"
#include "collection/Stepping.h"

namespace trekor {

class Boxes {
public:
  Boxes(RunContext& context, Stepping& roadSteps) : ctx(context), stepping(roadSteps) {}
  void Wire();
  void Validate_GridDepth();

private:
  void Wire(TextBox& box, int index);
  void Lost_Focus(int index);
  bool National_Key(int keyCode);

  RunContext& ctx;
  Stepping& stepping;
  bool entryGuard = true;
  std::string kept;      // what the box held when it got the focus
  char32_t national = 0; // the letter that the key now going down stands for
};

} // namespace trekor
