// The two collection grids, which are the buffer of the run: Grid, seen, one column for each observation, and
// StationsGrid beside it, row for row. Newest row on top; a row that leaves them is stored and gone.
//
// Making a row pumps messages in its middle. Boundaries and keys that come there wait until the row is complete, or the
// two grids would no longer match row for row; an EXIT that comes there finishes the row first (Finish_Row).
#pragma once

#include "collection/Asking.h"
#include "collection/RunContext.h"
#include "collection/Storing.h"

#include <deque>
#include <functional>
#include <optional>
#include <string>

namespace trekor {

class Grids {
public:
  Grids(RunContext& context, Asking& asking, Storing& storing) : ctx(context), ask(asking), store(storing) {}

  // Both after a change of the setup, in this order: the second brings back what the first leaves set for an empty
  // setup.
  void Setup_Grid();
  void Format_GridHeader();
  // A row that begins at the boundary just passed.
  void Add_StepRow();
  // A row beneath the current one, for the point of an observation at KeyStation.
  void Add_EventRow(int obs);
  // The selected cell in a pause is another than the logic regards as selected.
  void Grid_CellChanged();
  // Makes the values of the current row those of the observations.
  void Load_RowValues();

  // Completes the row that is being made, without pumping; nothing when there is none.
  void Finish_Row();
  void Remove_Row(int row);
  // In a pause: the row that moves up in its place becomes current with its own values, or those of the row that went
  // would be written into it.
  void Remove_CurrentRow();
  void Clear_Rows();
  // Puts all bars to 0 and all observations to their minimum.
  void Reset_Values();
  int RowKindAt(int row) const;
  // The observation's value into the cell and, for numbers, the bar.
  void Show_Bar(int obs);
  void Show_Cell(int row, int obs);
  void SetBar(int col, float value);
  float Bar(int col) const;

  // Header row 0 of a column; the space bar and no key show "[ ]".
  std::function<std::string(int code)> KeyCaption;
  static constexpr int KeyRow = 0, BarRow = 1, IconRow = 2, NameRow = 3;

private:
  // What a row needs to be finished, taken before anything was pumped.
  struct PendingRow {
    bool step = true;
    int obs = 0;         // of an event row
    int row = 0;         // its place
    std::string station; // in file units
    bool valuesDone = false;
  };
  void Make_Column(int i);
  void Make_Bar(int col);
  void Carry_Values();
  void Carry(int obs, int row);
  void Write_EventCells(int row, int obs);
  void Write_Text(int row, int obs);
  void Carry_OrWrite();
  void Drop_Oldest();
  bool BufferFull() const;
  bool Edit_EventCell(int obs);
  bool Edit_Number(int obs);
  bool Edit_Text(int obs);
  void Load_Value(int obs, bool stepRow, bool own);

  RunContext& ctx;
  Asking& ask;
  Storing& store;
  std::deque<ParBar> ParBars; // one a column, the step bar first
  std::optional<PendingRow> pending;
};

} // namespace trekor
