#include "collection/IdleKeys.h"

#include "values/KeyCodes.h"

namespace trekor {

bool IdleKeys::IdleKey(int keyCode, int shift) {
  const bool increasing = position.DmiIncreasing;
  if (keyCode == keys::F2)
    doers.run.Start_Run();
  if (keyCode == keys::Delete)
    doers.keyAssignment.RemoveSelectedKey();
  const bool turns = shift != 0 && (keyCode == keys::Up ? !increasing : keyCode == keys::Down && increasing);
  if (turns)
    form.UpDnPicture.Click(); // which does nothing while it is disabled
  // Ctrl+Shift+M will open the message editor here when the form store has not taken the key.
  return doers.texts.FormKeyDown(form, keyCode, shift) || doers.viewMenu.Key(keyCode, shift) || keyCode == keys::F2;
}

} // namespace trekor
