// A table of cells with fixed rows, a current cell, merged cells and pictures. New rows are inserted at the top, so
// rows are kept in a deque and an insertion moves no cells.
//
// While redraw is off changes are collected and told once, when it goes on again. A view asks TakeChanges and repaints
// only those.
#pragma once

#include "forms/Control.h"

#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace trekor {

enum class Align { Left, Centre, Right };

class Grid : public Control {
public:
  Grid(Form& owner, std::string name) : Control(owner, Kind::FlexGrid, std::move(name)) {}

  int Rows() const { return static_cast<int>(rows.size()); }
  int Cols() const { return columns; }
  int FixedRows() const { return fixedRows; }
  void SetFixedRows(int n);
  void SetCols(int n);
  // Rows are added at the end or cut there.
  void SetRows(int n);

  // Inserts a row at `row` with the text in its first column; rows below move down, and the current cell keeps its row
  // number. Skipped when `row` is below 0 or beyond the end.
  void AddItem(const std::string& text, int row);
  // Skipped when there is no such row. The current cell keeps its row number, or moves to the last row.
  void RemoveItem(int row);

  // Column heads: parts separated by "|" go into the top row, and a leading "<", "^" or ">" aligns the column left,
  // centre or right. Columns are added when there are more parts. The empty text changes nothing. Read back as it was
  // given.
  const std::string& FormatString() const { return format; }
  void SetFormatString(std::string text);

  // Reading a cell that does not exist gives the empty text; writing one is skipped.
  const std::string& Text(int row, int col) const;
  void SetText(int row, int col, std::string text);
  const std::string& CellPicture(int row, int col) const; // a key as in ImageList, "" none
  void SetCellPicture(int row, int col, std::string key);
  // A small text beside the picture of a cell, for grids whose rows stay where they are. `strong`: it is to be seen.
  struct Note {
    int row = 0, col = 0;
    std::string text;
    bool strong = false;
  };
  const Note& CellNote(int row, int col) const; // the empty one where there is none
  void SetCellNote(int row, int col, std::string text, bool strong = false);
  Align CellAlignment(int row, int col) const;
  void SetCellAlignment(int row, int col, Align a);
  void SetColAlignment(int col, Align a); // for cells that have none of their own
  int ColWidth(int col) const;            // twips; -1: the view's own
  void SetColWidth(int col, int twips);
  // Neighbouring cells with equal texts show as one, along a merged row or down a merged column.
  bool MergeRow(int row) const;
  void SetMergeRow(int row, bool on);
  bool MergeCol(int col) const;
  void SetMergeCol(int col, bool on);

  // The current cell, and the column where the selection ends. Code moves it without raising anything.
  int Row() const { return row; }
  int Col() const { return col; }
  int ColSel() const { return colSel; }
  void SetRow(int r);
  void SetCol(int c);
  void SetColSel(int c);
  // Selection marks: whether the selection is painted, and whether the operator may move it.
  bool SelectionMarks() const { return marks; }
  void SetSelectionMarks(bool on);
  // The operator's keys belong to this grid now: a view says so over all of it when no window of the program gets them.
  bool KeysWanted() const { return keysWanted; }
  void SetKeysWanted(bool on);
  // The size of all that a view draws of this grid, in percent of the given one. The twips of the columns are those at
  // 100.
  int Zoom() const { return zoom; }
  void SetZoom(int percent);
  // The next picture shows this column, whatever has to be scrolled for it.
  void BringIntoView(int col);
  void SetRedraw(bool on);
  // Removes all rows but the fixed ones.
  void ClearToFixedRows();

  // The operator moves the current cell with mouse or arrow keys; EnterCell is raised when it is another cell. Skipped
  // in the fixed rows and while selection marks are off.
  void SelectCell(int r, int c);
  // The operator's mouse on a cell.
  void Click(int r, int c);
  std::function<void()> OnEnterCell;
  std::function<void(int r, int c)> OnClick;
  std::function<void()> OnDblClick;
  // Dragging with the mouse. OnPickUp: the button went down on a cell; gives the picture that is dragged from there, ""
  // for none. OnDrop: what was picked up from `source`, which may be in another window, was let go on a cell of this
  // grid.
  std::function<std::string(int r, int c)> OnPickUp;
  std::function<void(const Grid& source, int r, int c)> OnDrop;

  // What was done since the last call, for the view.
  struct Changes {
    bool all = false; // repaint everything (columns, many rows, cleared)
    bool selection = false;
    int wanted = -1; // the column that was brought into view last
    struct Step {
      enum Sort { RowInserted, RowRemoved, Cell } sort;
      int row, col;
    };
    std::vector<Step> steps; // in the order in which they happened, at most MostSteps; empty when all is set
  };
  Changes TakeChanges();
  // With more steps a view paints everything faster. It also bounds the list of a grid that no view asks.
  static constexpr std::size_t MostSteps = 256;

private:
  struct CellData {
    std::string text, picture;
    int align = -1; // -1: the column's
  };
  struct RowData {
    std::vector<CellData> cells;
    bool merged = false;
  };
  void HeadColumn(int c, std::string_view part);
  bool HasCell(int r, int c) const;
  CellData* CellAt(int r, int c);
  const CellData* CellAt(int r, int c) const;
  void Record(Changes::Step::Sort sort, int r, int c);
  void RecordAll();
  void RecordSelection();
  void TellIfDrawn();
  void KeepSelectionInside();

  std::deque<RowData> rows;
  std::vector<Note> notes; // few, so a search is quick, and the cells of a long grid stay small
  std::string format;
  int columns = 0, fixedRows = 0;
  std::vector<int> colWidths;
  std::vector<Align> colAlign;
  std::vector<bool> colMerged;
  int row = 0, col = 0, colSel = 0;
  int zoom = 100;
  bool marks = false, keysWanted = false, redraw = true, untold = false;
  Changes pending;
};

} // namespace trekor
