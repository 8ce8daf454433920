#include "collection/RowBuffer.h"

#include <utility>

namespace trekor {

const GridRow* RowBuffer::At(int place) const {
  return place >= Top() && place <= Bottom() ? &rows[static_cast<std::size_t>(place - Top())] : nullptr;
}

GridRow* RowBuffer::At(int place) {
  return const_cast<GridRow*>(std::as_const(*this).At(place));
}

int RowBuffer::EventAt(int place) const {
  const GridRow* row = At(place);
  return row && row->kind == RowKind::Event ? row->obs : 0;
}

const std::string& RowBuffer::Cell(int place, int col) const {
  static const std::string nothing;
  const GridRow* row = At(place);
  const bool there = row && col >= 0 && col < static_cast<int>(row->cells.size());
  return there ? row->cells[static_cast<std::size_t>(col)] : nothing;
}

void RowBuffer::SetCell(int place, int col, std::string text) {
  GridRow* row = At(place);
  if (!row || col < 0 || col >= static_cast<int>(row->cells.size()))
    return;
  grid.SetText(place, col, text);
  row->cells[static_cast<std::size_t>(col)] = std::move(text);
}

void RowBuffer::Insert(int place, GridRow row, const std::string& road) {
  if (place < Top() || place > Bottom() + 1)
    return;
  row.cells.assign(static_cast<std::size_t>(grid.Cols()), "");
  if (!row.cells.empty())
    row.cells.front() = road;
  rows.insert(rows.begin() + (place - Top()), std::move(row));
  grid.AddItem(road, place);
}

void RowBuffer::Remove(int place) {
  if (!At(place))
    return;
  rows.erase(rows.begin() + (place - Top()));
  grid.RemoveItem(place);
}

void RowBuffer::Clear() {
  rows.clear();
  grid.ClearToFixedRows();
}

} // namespace trekor
