// The collection grid as data: its model, the rows of the buffer behind it, and the current cell. One column for each
// observation of the running setup; column 0 holds the stretch of road.
#pragma once

#include "collection/RowBuffer.h"
#include "setup/TestSetup.h"

namespace trekor {

struct RunGrid {
  RunGrid(Grid& picture, TestSetup& setup) : picture(picture), setup(setup) {}

  // Rows of the head.
  static constexpr int KeyRow = 0, BarRow = 1, IconRow = 2, NameRow = 3;

  Grid& picture;
  TestSetup& setup;
  RowBuffer rows{picture};
  // The current cell: the one that the logic works with.
  int CurrentRow = 0, CurrentCol = 0;
  // The observation of the last key; with AwaitValue the next key is its value.
  int CurrentObs = 0;
  bool AwaitValue = false;
  bool GridBusy = false; // the program is moving the current cell itself

  void SelectNewestRow() {
    CurrentRow = picture.FixedRows();
    CurrentCol = 0;
  }
};

} // namespace trekor
