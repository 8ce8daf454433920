// The keys of the main form, which gets them before its controls do, and the toolbar, whose buttons are keys.
#pragma once

#include "collection/IdleKeys.h"
#include "collection/KeyRing.h"
#include "collection/NumLock.h"
#include "collection/RunNews.h"
#include "collection/RunStage.h"

#include <string>

namespace trekor {

class FormKeys {
public:
  FormKeys(const RunStage& stage, KeyRing& ring, IdleKeys& idleKeys, NumLock& numLock, RunNews& news)
      : stage(stage), ring(ring), idleKeys(idleKeys), numLock(numLock), news(news) {}
  // True: the key is taken. In a run every key goes into the ring and nowhere else.
  bool Form_KeyDown(int keyCode, int shift);
  // True: the letter is dropped.
  bool Form_KeyPress(char32_t character);
  void Form_KeyUp(int keyCode);
  void Form_Activate();
  void tbControlBar_ButtonClick(const std::string& key);

private:
  void KeepNumLock();

  const RunStage& stage;
  KeyRing& ring;
  IdleKeys& idleKeys;
  NumLock& numLock;
  RunNews& news;
};

} // namespace trekor
