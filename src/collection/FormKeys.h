// The keys of the main form, which hears them before its controls do, and the toolbar, whose buttons are keys.
#pragma once

#include "collection/Asking.h"
#include "collection/KeyPictures.h"
#include "collection/KeyRing.h"
#include "collection/Run.h"
#include "collection/RunContext.h"

#include <string>

namespace trekor {

class FormKeys {
public:
  FormKeys(RunContext& context, KeyRing& ring, Run& run, Asking& asking, KeyPictures& keyPictures)
      : ctx(context), ring(ring), run(run), asking(asking), keyPictures(keyPictures) {}
  // True: the key is taken. In a run every key goes into the ring and to nobody else.
  bool Form_KeyDown(int keyCode, int shift);
  void Form_KeyUp(int keyCode);
  void tbControlBar_ButtonClick(const std::string& key);
  void Form_Activate();

private:
  bool IdleKey(int keyCode, int shift);
  void KeepNumLock();

  RunContext& ctx;
  KeyRing& ring;
  Run& run;
  Asking& asking;
  KeyPictures& keyPictures;
};

} // namespace trekor
