// What the floating pictures of the keys tell during a run: the present value of each observation that goes on, and
// which key was the last. Only shown: nothing of it is stored or sent.
#pragma once

#include "collection/KeyPictures.h"
#include "collection/RunStage.h"

namespace trekor {

class KeyMarks {
public:
  KeyMarks(KeyPictures& pictures, const RunStage& stage) : pictures(pictures), stage(stage) {}
  // A key is about to act: it is marked first, as it may open a prompt.
  void Pressed(int key);
  // The values as they are now; after a run none. Called behind each key and at the pace of the step bar.
  void Refresh();

private:
  KeyPictures& pictures;
  const RunStage& stage;
  bool shown = false;
};

} // namespace trekor
