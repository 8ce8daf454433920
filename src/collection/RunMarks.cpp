#include "collection/RunMarks.h"

#include "values/BarPictures.h"

#include <cmath>

namespace trekor {

namespace {
constexpr double QuietSeconds = 2, AlertSeconds = 5;
constexpr int LinkRow = RunGrid::KeyRow, StateRow = RunGrid::IconRow;
} // namespace

// The head keeps its place whatever is told: the cells of column 0 have room for each of the texts.
void RunMarks::Refresh(double now, bool linkUp) {
  ShowLink(linkUp);
  const double age = PositionAge(now);
  if (stage.InRun() && age >= QuietSeconds)
    Show(StateRow, "Position " + std::to_string(std::lround(age)) + " s old", stage.Running() && age > AlertSeconds);
  else
    Show(StateRow, "", false);
}

// A dot, full or empty; keys that were lost take the place of the word until the next start.
void RunMarks::ShowLink(bool linkUp) {
  const std::string word = ring.Lost > 0 ? std::to_string(ring.Lost) + " keys lost" : linkUp ? "Link" : "No link";
  Show(LinkRow, word + (linkUp ? " \u25CF" : " \u25CB"), ring.Lost > 0 || (!linkUp && stage.InRun()));
}

// Seconds.
double RunMarks::PositionAge(double now) {
  if (position.Heard != heard || !watching) {
    heard = position.Heard;
    heardAt = now;
  }
  watching = stage.InRun();
  return (now - heardAt) / 1000;
}

void RunMarks::Show(int row, const std::string& text, bool alert) {
  grid.picture.SetText(row, 0, text);
  grid.picture.SetCellPicture(row, 0, alert ? AlertMark : "");
}

} // namespace trekor
