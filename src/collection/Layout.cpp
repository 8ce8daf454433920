#include "collection/Layout.h"

#include <algorithm>

namespace trekor {

namespace {
constexpr int TabHead = 390, Margin = 60, CurtainStep = 1000;
} // namespace

void Layout::Setup_Tabs() {
  TabStrip& tabs = form.TabStrip1;
  tabs.Clear();
  tabs.Add("Info", "Info");
  tabs.Add("Keyboard", "Keyboard");
  tabs.Add("Keypad", "Keypad");
}

Frame* Layout::FrameOf(int tab) const {
  Frame* const frames[] = {&form.tabFrames0, &form.tabFrames1, &form.tabFrames2};
  return frames[tab];
}

void Layout::TabStrip1_Click() {
  const int selected = std::max(form.TabStrip1.Selected(), 0);
  for (int tab = 0; tab < 3; ++tab)
    FrameOf(tab)->SetVisible(tab == selected);
}

void Layout::Resize() {
  if (form.WindowState() == WindowStates::Minimised)
    return;
  form.tbControlBar.Move(0, 0, form.Width, form.tbControlBar.Height);
  form.TabStrip1.Move(0, form.tbControlBar.Height, form.Width, form.TabStrip1.Height);
  PlaceFrames();
  PlaceGrid(GridTop());
}

void Layout::PlaceFrames() {
  const TabStrip& tabs = form.TabStrip1;
  const int width = std::max(tabs.Width - 2 * Margin, 0), height = std::max(tabs.Height - TabHead - Margin, 0);
  // What is in the frames first: a page makes room for what it finds.
  for (Grid* keys : {&form.fxgKeyBoard, &form.fxgKeyPad})
    keys->Move(Margin, Margin, std::max(width - 2 * Margin, 0), std::max(height - 2 * Margin, 0));
  for (int tab = 0; tab < 3; ++tab)
    FrameOf(tab)->Move(Margin, tabs.Top + TabHead, width, height);
}

int Layout::GridTop() const {
  return gridCovers ? form.tbControlBar.Height : form.TabStrip1.Top + form.TabStrip1.Height;
}

void Layout::PlaceGrid(int top) {
  form.Grid.Move(0, top, form.Width, std::max(form.Height - top, 0));
}

void Layout::CoverTabs() {
  gridCovers = true;
  PlaceGrid(GridTop());
}

void Layout::UncoverTabs() {
  gridCovers = false;
  PlaceGrid(GridTop());
}

void Layout::TimerCurtain_Timer() {
  const int now = form.Grid.Top, goal = GridTop();
  const int next = now < goal ? std::min(now + CurtainStep, goal) : std::max(now - CurtainStep, goal);
  PlaceGrid(next);
  if (next == goal)
    form.TimerCurtain.SetRunning(false);
}

} // namespace trekor
