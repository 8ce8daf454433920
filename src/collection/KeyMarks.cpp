#include "collection/KeyMarks.h"

namespace trekor {

namespace {
constexpr int NoKey = -1;
}

void KeyMarks::Pressed(int key) {
  pictures.MarkKey(key);
}

void KeyMarks::Refresh() {
  if (!stage.InRun() && !shown)
    return;
  shown = stage.InRun();
  pictures.ShowValues(shown);
  if (!shown)
    pictures.MarkKey(NoKey);
}

} // namespace trekor
