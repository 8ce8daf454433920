// Where the large pieces of the main form stand: toolbar on top, the tabs with one frame at a time, the grid under
// them; during a run the grid covers everything under the toolbar. Twips.
#pragma once

#include "collection/MeasurementsForm.h"

namespace trekor {

class Layout {
public:
  explicit Layout(MeasurementsForm& form) : form(form) {}
  void Setup_Tabs();
  void TabStrip1_Click();
  // Lays out everything to the inside of the form.
  void Resize();
  void CoverTabs();
  void UncoverTabs();
  // One firing of the curtain: the grid slides towards its place. Nothing turns the timer on; the places are taken at
  // once.
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
