#include "collection/Layout.h"

#include <algorithm>

namespace trekor {

namespace {
constexpr int TabHead = 390, Margin = 60, CurtainStep = 1000;
} // namespace

void Layout::Setup_Tabs() {
  TabStrip& tabs = ctx.form.TabStrip1;
  tabs.Clear();
  tabs.Add("Info", "Info");
  tabs.Add("Keyboard", "Keyboard");
  tabs.Add("Keypad", "Keypad");
}

Frame* Layout::FrameOf(int tab) const {
  Frame* const frames[] = {&ctx.form.tabFrames0, &ctx.form.tabFrames1, &ctx.form.tabFrames2};
  return frames[tab];
}

void Layout::TabStrip1_Click() {
  const int selected = std::max(ctx.form.TabStrip1.Selected(), 0);
  for (int tab = 0; tab < 3; ++tab)
    FrameOf(tab)->SetVisible(tab == selected);
}

void Layout::Resize() {
  auto& form = ctx.form;
  if (form.WindowState() == WindowStates::Minimised)
    return;
  form.tbControlBar.Move(0, 0, form.Width, form.tbControlBar.Height);
  form.TabStrip1.Move(0, form.tbControlBar.Height, form.Width, form.TabStrip1.Height);
  PlaceFrames();
  PlaceGrid(GridTop());
}

void Layout::PlaceFrames() {
  const TabStrip& tabs = ctx.form.TabStrip1;
  const int width = std::max(tabs.Width - 2 * Margin, 0), height = std::max(tabs.Height - TabHead - Margin, 0);
  for (int tab = 0; tab < 3; ++tab)
    FrameOf(tab)->Move(Margin, tabs.Top + TabHead, width, height);
  for (Grid* keys : {&ctx.form.fxgKeyBoard, &ctx.form.fxgKeyPad})
    keys->Move(Margin, Margin, std::max(width - 2 * Margin, 0), std::max(height - 2 * Margin, 0));
}

int Layout::GridTop() const {
  const auto& form = ctx.form;
  return ctx.fields.gridCovers ? form.tbControlBar.Height : form.TabStrip1.Top + form.TabStrip1.Height;
}

void Layout::PlaceGrid(int top) {
  ctx.form.Grid.Move(0, top, ctx.form.Width, std::max(ctx.form.Height - top, 0));
}

void Layout::CoverTabs() {
  ctx.fields.gridCovers = true;
  PlaceGrid(GridTop());
}

void Layout::UncoverTabs() {
  ctx.fields.gridCovers = false;
  PlaceGrid(GridTop());
}

void Layout::TimerCurtain_Timer() {
  const int now = ctx.form.Grid.Top, goal = GridTop();
  const int next = now < goal ? std::min(now + CurtainStep, goal) : std::max(now - CurtainStep, goal);
  PlaceGrid(next);
  if (next == goal)
    ctx.form.TimerCurtain.SetRunning(false);
}

} // namespace trekor
