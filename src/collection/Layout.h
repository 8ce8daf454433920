// Where the large pieces of the main form stand: toolbar on top, the tabs with one frame at a time, the grid under
// them; during a run the grid covers everything under the toolbar. Twips.
#pragma once

#include "collection/RunContext.h"

namespace trekor {

class Layout {
public:
  explicit Layout(RunContext& context) : ctx(context) {}
  void Setup_Tabs();
  void TabStrip1_Click();
  // Lays out everything to the inside of the form.
  void Resize();
  void Cover_Tabs();
  void Uncover_Tabs();
  // One firing of the curtain: the grid slides towards its place. Nothing turns the timer on; the places are taken at
  // once.
  void TimerCurtain_Timer();

private:
  int Grid_Top() const;
  void Place_Grid(int top);
  void Place_Frames();
  Frame* Frame_Of(int tab) const;

  RunContext& ctx;
};

} // namespace trekor
