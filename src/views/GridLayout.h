// Where the cells of a grid lie in its view: fixed rows on top, the first column at the left; both stay when the rest
// is scrolled. Columns are scrolled and shown as a whole: one that doesn't fit at the right is left out, as half a word
// or half a picture is none. In logical pixels of the view. The grid's zoom enlarges all of it; the sizes below are
// those at 100.
#pragma once

#include "forms/Grid.h"

#include <QFontMetrics>
#include <QRect>
#include <QSize>

#include <vector>

namespace trekor {

class GridLayout {
public:
  // Computes the layout for a view of this size; `metrics` are those of the enlarged font.
  void Arrange(const Grid& grid, const QFontMetrics& metrics, QSize view);
  void ScrollTo(int x, int y) { scrolled = {WholeColumns(x), y}; }

  // What does not fit into the view and can be scrolled to.
  QSize Overhang(QSize view, int rows) const;
  int FixedHeight() const { return tops.back(); }
  int RowHeight() const { return rowHeight; }
  // The first row and the first column of those that scroll that can be seen, and where to scroll to for them.
  int FirstRow() const { return RowAt(FixedHeight()); }
  int FirstColumn() const { return ColumnAt(FirstColumnWidth()); }
  QPoint PlaceOf(int row, int col) const;
  // The last column that a view of this width shows.
  int LastColumn(int width) const;
  // How far the columns must be scrolled so that one is whole in a view of this width: no further than needed, and with
  // a whole column at the left.
  int ScrollFor(int col, int width) const;
  int FirstColumnWidth() const { return edges.size() > 1 ? edges[1] : 0; }
  // Columns `first` to `last` of a row, also where fixed parts cover them.
  QRect CellRect(int row, int first, int last) const;
  QRect RowRect(int row, int width) const;
  int RowAt(int y) const;    // may lie beyond the grid's last row
  int ColumnAt(int x) const; // -1 beyond the last column
  // The height of a fixed row, by its pictures. Data rows all have RowHeight.
  int HeightOfFixedRow(const Grid& grid, int row) const;

private:
  int WholeColumns(int x) const;
  int Zoomed(int pixels) const { return pixels * zoom / 100; }
  int Share(const Grid& grid, int station, int width) const;
  int ColumnWidth(const Grid& grid, int col, int share) const;
  int zoom = 100, fixedRows = 0, rowHeight = 1, stationWidth = 0;
  std::vector<int> edges{0}; // left edges of the columns, and the right edge of the last one
  std::vector<int> tops{0};  // upper edges of the fixed rows, and the lower edge of the last one
  QPoint scrolled;
};

} // namespace trekor
