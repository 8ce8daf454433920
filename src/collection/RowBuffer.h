// The buffer of the run: the rows that are not stored yet, newest on top. The grid shows them; every change of a row
// goes through here, so that the two cannot differ. A row is named by its place in the grid, which changes when rows
// are inserted above it.
#pragma once

#include "collection/GridRow.h"
#include "forms/Grid.h"

#include <deque>
#include <string>

namespace trekor {

class RowBuffer {
public:
  explicit RowBuffer(Grid& picture) : grid(picture) {}

  int Count() const { return static_cast<int>(rows.size()); }
  int Top() const { return grid.FixedRows(); } // place of the newest row
  int Bottom() const { return Top() + Count() - 1; }
  // How many rows the buffer holds before the oldest is removed.
  int Depth() const { return GridDepth; }
  void SetDepth(int depth) { GridDepth = depth; }
  bool Overfull() const { return Count() > GridDepth; }

  // Null where there is no row. Valid until the next row is inserted or removed.
  GridRow* At(int place);
  const GridRow* At(int place) const;
  // The observation of an event row; 0 for a step row and where there is none.
  int EventAt(int place) const;
  // Reading a cell that does not exist gives the empty text; writing one is skipped.
  const std::string& Cell(int place, int col) const;
  void SetCell(int place, int col, std::string text);

  // `road` is the text of its first cell; the others are empty, one for each column that the grid has now. Skipped when
  // the place is neither among the rows nor directly below them.
  void Insert(int place, GridRow row, const std::string& road);
  void Remove(int place);
  void Clear();

private:
  Grid& grid;
  std::deque<GridRow> rows;
  int GridDepth = 10;
};

} // namespace trekor
