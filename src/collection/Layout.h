// Places the parts of the main form: the toolbar on top, the tabs with one frame at a time, the grid below; during a
// run the grid covers everything below the toolbar. Twips.
#pragma once

#include "collection/MeasurementsForm.h"

namespace trekor {

class Layout {
public:
  explicit Layout(MeasurementsForm& form) : form(form) {}
  // The tabs, by their places.
  static constexpr int TabInfo = 0, TabKeyboard = 1, TabKeypad = 2;
  void Setup_Tabs();
  void TabStrip1_Click();
  // Lays out everything to the inside of the form.
  void Resize();
  void CoverTabs();
  void UncoverTabs();
  // One step of the curtain that slides the grid to its place. Kept switched off: nothing turns that timer on, the grid
  // is moved at once.
  void TimerCurtain_Timer();

private:
  int GridTop() const;
  void PlaceGrid(int top);
  void PlaceFrames();
  Frame* FrameOf(int tab) const;

  MeasurementsForm& form;
  bool gridCovers = false; // the tabs, as it does in a run
};

} // namespace trekor
