#include "forms/Grid.h"

#include "forms/Entries.h"

#include <algorithm>
#include <utility>

namespace trekor {

bool Grid::HasCell(int r, int c) const {
  return Has(rows, r) && c >= 0 && c < columns;
}

Grid::CellData* Grid::CellAt(int r, int c) {
  return HasCell(r, c) ? &At(At(rows, r).cells, c) : nullptr;
}

const Grid::CellData* Grid::CellAt(int r, int c) const {
  return HasCell(r, c) ? &At(At(rows, r).cells, c) : nullptr;
}

void Grid::SetFixedRows(int n) {
  if (n < 0 || n == fixedRows)
    return;
  fixedRows = n;
  RecordAll();
}

void Grid::SetCols(int n) {
  if (n < 0 || n == columns)
    return;
  columns = n;
  const auto count = static_cast<std::size_t>(n);
  colWidths.resize(count, -1);
  colAlign.resize(count, Align::Left);
  colMerged.resize(count, false);
  for (RowData& r : rows)
    r.cells.resize(count);
  KeepSelectionInside();
  RecordAll();
}

void Grid::SetRows(int n) {
  if (n < 0 || n == Rows())
    return;
  RowData empty;
  empty.cells.resize(static_cast<std::size_t>(columns));
  rows.resize(static_cast<std::size_t>(n), empty);
  KeepSelectionInside();
  RecordAll();
}

void Grid::AddItem(const std::string& text, int place) {
  if (place < 0 || place > Rows())
    return;
  RowData fresh;
  fresh.cells.resize(static_cast<std::size_t>(columns));
  if (columns > 0)
    fresh.cells.front().text = text;
  rows.insert(rows.begin() + place, std::move(fresh));
  Record(Changes::Step::RowInserted, place, 0);
}

void Grid::RemoveItem(int place) {
  if (!Has(rows, place))
    return;
  rows.erase(rows.begin() + place);
  KeepSelectionInside();
  Record(Changes::Step::RowRemoved, place, 0);
}

void Grid::SetFormatString(std::string text) {
  format = std::move(text);
  if (format.empty())
    return;
  const auto parts = static_cast<int>(std::count(format.begin(), format.end(), '|')) + 1;
  SetCols(std::max(columns, parts));
  std::string_view rest = format;
  for (int c = 0; c < parts; ++c) {
    const std::size_t end = rest.find('|');
    HeadColumn(c, rest.substr(0, end));
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  }
}

void Grid::HeadColumn(int c, std::string_view part) {
  constexpr std::string_view marks = "<^>";
  const std::size_t mark = part.empty() ? std::string_view::npos : marks.find(part.front());
  if (mark != std::string_view::npos) {
    SetColAlignment(c, static_cast<Align>(mark)); // the characters are in the order of the alignments
    part.remove_prefix(1);
  }
  SetText(0, c, std::string(part));
}

const std::string& Grid::Text(int r, int c) const {
  const CellData* cell = CellAt(r, c);
  return cell ? cell->text : Nothing;
}

void Grid::SetText(int r, int c, std::string text) {
  CellData* cell = CellAt(r, c);
  if (!cell || cell->text == text)
    return;
  cell->text = std::move(text);
  Record(Changes::Step::Cell, r, c);
}

const std::string& Grid::CellPicture(int r, int c) const {
  const CellData* cell = CellAt(r, c);
  return cell ? cell->picture : Nothing;
}

void Grid::SetCellPicture(int r, int c, std::string key) {
  CellData* cell = CellAt(r, c);
  if (!cell || cell->picture == key)
    return;
  cell->picture = std::move(key);
  Record(Changes::Step::Cell, r, c);
}

const Grid::Note& Grid::CellNote(int r, int c) const {
  static const Note none;
  const auto found = std::find_if(notes.begin(), notes.end(), [&](const Note& n) { return n.row == r && n.col == c; });
  return found == notes.end() ? none : *found;
}

void Grid::SetCellNote(int r, int c, std::string text, bool strong) {
  strong = strong && !text.empty(); // an empty note is none
  const Note& present = CellNote(r, c);
  if (!HasCell(r, c) || (present.text == text && present.strong == strong))
    return;
  std::erase_if(notes, [&](const Note& n) { return n.row == r && n.col == c; });
  if (!text.empty())
    notes.push_back({r, c, std::move(text), strong});
  Record(Changes::Step::Cell, r, c);
}

Align Grid::CellAlignment(int r, int c) const {
  const CellData* cell = CellAt(r, c);
  if (!cell)
    return Align::Left;
  return cell->align < 0 ? At(colAlign, c) : static_cast<Align>(cell->align);
}

void Grid::SetCellAlignment(int r, int c, Align a) {
  CellData* cell = CellAt(r, c);
  if (!cell || cell->align == static_cast<int>(a))
    return;
  cell->align = static_cast<int>(a);
  Record(Changes::Step::Cell, r, c);
}

void Grid::SetColAlignment(int c, Align a) {
  if (!Has(colAlign, c) || At(colAlign, c) == a)
    return;
  At(colAlign, c) = a;
  RecordAll();
}

int Grid::ColWidth(int c) const {
  return Has(colWidths, c) ? At(colWidths, c) : -1;
}

void Grid::SetColWidth(int c, int twips) {
  if (!Has(colWidths, c) || At(colWidths, c) == twips)
    return;
  At(colWidths, c) = twips;
  RecordAll();
}

bool Grid::MergeRow(int r) const {
  return Has(rows, r) && At(rows, r).merged;
}

// Merging a row changes the picture of that row only.
void Grid::SetMergeRow(int r, bool on) {
  if (!Has(rows, r) || At(rows, r).merged == on)
    return;
  At(rows, r).merged = on;
  Record(Changes::Step::Cell, r, 0);
}

bool Grid::MergeCol(int c) const {
  return Has(colMerged, c) && At(colMerged, c);
}

void Grid::SetMergeCol(int c, bool on) {
  if (!Has(colMerged, c) || At(colMerged, c) == on)
    return;
  At(colMerged, c) = on;
  RecordAll();
}

void Grid::SetRow(int r) {
  if (!Has(rows, r) || r == row)
    return;
  row = r;
  RecordSelection();
}

void Grid::SetCol(int c) {
  if (c < 0 || c >= columns || (c == col && c == colSel))
    return;
  col = colSel = c;
  RecordSelection();
}

void Grid::SetColSel(int c) {
  if (c < 0 || c >= columns || c == colSel)
    return;
  colSel = c;
  RecordSelection();
}

void Grid::SetKeysWanted(bool on) {
  if (keysWanted == on)
    return;
  keysWanted = on;
  RecordSelection();
}

void Grid::SetZoom(int percent) {
  if (percent <= 0 || percent == zoom)
    return;
  zoom = percent;
  RecordAll();
}

void Grid::BringIntoView(int c) {
  if (c < 0 || c >= columns)
    return;
  pending.wanted = c;
  TellIfDrawn();
}

void Grid::SetSelectionMarks(bool on) {
  if (marks == on)
    return;
  marks = on;
  RecordSelection();
}

void Grid::SetRedraw(bool on) {
  redraw = on;
  if (untold)
    TellIfDrawn();
}

void Grid::ClearToFixedRows() {
  SetRows(std::min(fixedRows, Rows()));
}

void Grid::SelectCell(int r, int c) {
  if (!Enabled() || !marks || r < fixedRows || !HasCell(r, c))
    return;
  const bool another = r != row || c != col;
  SetRow(r);
  SetCol(c);
  if (another && OnEnterCell)
    OnEnterCell();
}

void Grid::Click(int r, int c) {
  if (Enabled() && HasCell(r, c) && OnClick)
    OnClick(r, c);
}

Grid::Changes Grid::TakeChanges() {
  return std::exchange(pending, Changes());
}

void Grid::Record(Changes::Step::Sort sort, int r, int c) {
  if (pending.steps.size() >= MostSteps)
    return RecordAll();
  if (!pending.all)
    pending.steps.push_back({sort, r, c});
  TellIfDrawn();
}

void Grid::RecordAll() {
  pending.all = true;
  pending.steps.clear();
  TellIfDrawn();
}

void Grid::RecordSelection() {
  pending.selection = true;
  TellIfDrawn();
}

void Grid::TellIfDrawn() {
  untold = !redraw;
  if (redraw)
    Tell(Change::Cells);
}

void Grid::KeepSelectionInside() {
  const int lastRow = std::max(Rows() - 1, 0), lastCol = std::max(columns - 1, 0);
  const bool outside = row > lastRow || col > lastCol || colSel > lastCol;
  row = std::min(row, lastRow);
  col = std::min(col, lastCol);
  colSel = std::min(colSel, lastCol);
  pending.selection |= outside;
}

} // namespace trekor
