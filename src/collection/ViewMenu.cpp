#include "collection/ViewMenu.h"

#include "values/KeyCodes.h"

#include <algorithm>

namespace trekor {

namespace {
constexpr int Sizes = static_cast<int>(MeasurementsForm::GridSizes.size());
constexpr int GivenSize = Sizes / 2;
constexpr int CtrlAlone = 2;
} // namespace

void ViewMenu::Wire() {
  for (int i = 0; i < Sizes; ++i)
    form.mnuSizes[i].OnClick = [this, i] { ShowSize(i); };
  form.mnuViewLarger.OnClick = [this] { ShowSize(SizeTicked() + 1); };
  form.mnuViewSmaller.OnClick = [this] { ShowSize(SizeTicked() - 1); };
  form.mnuViewNight.OnClick = [this] { ToggleNight(); };
}

void ViewMenu::LoadLook() {
  ShowSize(SizeTicked());
  shell.ShowNight(form.mnuViewNight.Checked());
}

int ViewMenu::SizeTicked() const {
  for (int i = 0; i < Sizes; ++i)
    if (form.mnuSizes[i].Checked())
      return i;
  return GivenSize;
}

void ViewMenu::ShowSize(int wanted) {
  const int size = std::clamp(wanted, 0, Sizes - 1);
  for (int i = 0; i < Sizes; ++i)
    form.mnuSizes[i].SetChecked(i == size);
  form.mnuViewLarger.SetEnabled(size + 1 < Sizes);
  form.mnuViewSmaller.SetEnabled(size > 0);
  form.Grid.SetZoom(MeasurementsForm::GridSizes[static_cast<std::size_t>(size)]);
}

void ViewMenu::ToggleNight() {
  form.mnuViewNight.SetChecked(!form.mnuViewNight.Checked());
  shell.ShowNight(form.mnuViewNight.Checked());
}

bool ViewMenu::Key(int keyCode, int shift) {
  Menu* const entry = keyCode == keys::F12 && shift == 0                ? &form.mnuViewNight
                      : keyCode == keys::PageUp && shift == CtrlAlone   ? &form.mnuViewLarger
                      : keyCode == keys::PageDown && shift == CtrlAlone ? &form.mnuViewSmaller
                                                                        : nullptr;
  if (entry)
    entry->Click();
  return entry != nullptr;
}

} // namespace trekor
