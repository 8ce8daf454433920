#include "views/GridLayout.h"

#include "values/BarPictures.h"
#include "views/Twips.h"

#include <algorithm>

namespace trekor {

namespace {

constexpr int Margin = 6;
constexpr int PictureRow = 44;
constexpr int NarrowestColumn = 62;
constexpr int WidestColumn = 150;

std::size_t N(int i) {
  return static_cast<std::size_t>(i);
}

} // namespace

int GridLayout::Share(const Grid& grid, int station, int width) const {
  const int others = grid.Cols() - 1, least = Zoomed(NarrowestColumn);
  return others > 0 ? std::clamp((width - station) / others, least, Zoomed(WidestColumn)) : least;
}

int GridLayout::HeightOfFixedRow(const Grid& grid, int row) const {
  for (int c = 0; c < grid.Cols(); ++c)
    if (const std::string& picture = grid.CellPicture(row, c); !picture.empty() && picture != AlertMark)
      return Zoomed(PictureRow);
  return rowHeight;
}

// The model's width, if it has one; but column 0 is never too narrow for the positions of a step.
int GridLayout::ColumnWidth(const Grid& grid, int col, int share) const {
  const int wanted = grid.ColWidth(col) < 0 ? share : Zoomed(Pixels(grid.ColWidth(col)));
  return col == 0 ? std::max(grid.ColWidth(0) < 0 ? 0 : wanted, stationWidth) : wanted;
}

void GridLayout::Arrange(const Grid& grid, const QFontMetrics& metrics, QSize view) {
  zoom = grid.Zoom();
  fixedRows = std::min(grid.FixedRows(), grid.Rows());
  rowHeight = metrics.height() + 2 * Zoomed(Margin);
  stationWidth = metrics.horizontalAdvance("0000.000 to 0000.000") + 3 * Zoomed(Margin);
  const int share = Share(grid, ColumnWidth(grid, 0, 0), view.width());
  edges.assign(1, 0);
  for (int c = 0; c < grid.Cols(); ++c)
    edges.push_back(edges.back() + ColumnWidth(grid, c, share));
  tops.assign(1, 0);
  for (int r = 0; r < fixedRows; ++r)
    tops.push_back(tops.back() + HeightOfFixedRow(grid, r));
}

// `x`, or a little further, where a column begins.
int GridLayout::WholeColumns(int x) const {
  if (edges.size() < 3 || x <= 0)
    return 0;
  const auto edge = std::lower_bound(edges.begin() + 1, edges.end() - 2, x + edges[1]); // one column stays
  return *edge - edges[1];
}

int GridLayout::LastColumn(int width) const {
  const int last = static_cast<int>(edges.size()) - 2, first = FirstColumn();
  int col = std::max(first, 0);
  while (col < last && edges[N(col) + 2] - scrolled.x() <= width)
    ++col;
  return std::min(col, last);
}

QSize GridLayout::Overhang(QSize view, int rows) const {
  return {WholeColumns(edges.back() - view.width()),
          std::max(0, FixedHeight() + (rows - fixedRows) * rowHeight - view.height())};
}

QPoint GridLayout::PlaceOf(int row, int col) const {
  const bool scrolls = col > 0 && col < static_cast<int>(edges.size());
  return {scrolls ? edges[N(col)] - FirstColumnWidth() : 0, std::max(0, row - fixedRows) * rowHeight};
}

int GridLayout::ScrollFor(int col, int width) const {
  if (col <= 0 || col + 1 >= static_cast<int>(edges.size()))
    return scrolled.x();
  const int left = edges[N(col)] - FirstColumnWidth(), right = edges[N(col) + 1];
  if (left < scrolled.x())
    return left;
  if (right - scrolled.x() <= width)
    return scrolled.x();
  int first = 1;
  while (first < col && right - edges[N(first)] > width - FirstColumnWidth())
    ++first;
  return edges[N(first)] - FirstColumnWidth();
}

QRect GridLayout::RowRect(int row, int width) const {
  if (row < fixedRows)
    return {0, tops[N(row)], width, tops[N(row) + 1] - tops[N(row)]};
  return {0, FixedHeight() + (row - fixedRows) * rowHeight - scrolled.y(), width, rowHeight};
}

QRect GridLayout::CellRect(int row, int first, int last) const {
  const int left = edges[N(first)] - (first > 0 ? scrolled.x() : 0);
  const int right = edges[N(last) + 1] - (last > 0 ? scrolled.x() : 0);
  const QRect line = RowRect(row, 0);
  return {left, line.top(), right - left, line.height()};
}

int GridLayout::RowAt(int y) const {
  if (y < FixedHeight())
    return static_cast<int>(std::upper_bound(tops.begin(), tops.end(), y) - tops.begin()) - 1;
  return fixedRows + (y - FixedHeight() + scrolled.y()) / rowHeight;
}

int GridLayout::ColumnAt(int x) const {
  const int place = x < FirstColumnWidth() ? x : x + scrolled.x();
  const int col = static_cast<int>(std::upper_bound(edges.begin(), edges.end(), place) - edges.begin()) - 1;
  return col < static_cast<int>(edges.size()) - 1 ? col : -1;
}

} // namespace trekor
