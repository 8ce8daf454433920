// The collection grid: one column for each observation, under a head that shows key, value bar, icon and name; beneath
// it the rows of the buffer. A row that the buffer has no more room for is stored and gone.
//
// Making a row pumps messages in its middle. Boundaries and keys that come there wait until the row is complete; an
// EXIT that comes there finishes the row first (FinishRow), so that it is stored whole.
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
  Grids(RunContext& context, Asking& asking, Storing& storing) : ctx(context), asking(asking), storing(storing) {}

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
  void FinishRow();
  // In a pause: the row that moves up in its place becomes current with its own values, or those of the row that went
  // would be written into it.
  void RemoveCurrentRow();
  // Puts all bars to 0 and all observations to their minimum.
  void ResetValues();
  // The observation's value into the cell and, for numbers, the bar.
  void ShowBar(int obs);
  void ShowCell(int row, int obs);
  void SetBar(int col, float value);
  float Bar(int col) const;

  // Header row 0 of a column; the space bar and no key show "[ ]".
  std::function<std::string(int code)> keyCaption;
  static constexpr int KeyRow = 0, BarRow = 1, IconRow = 2, NameRow = 3;

private:
  // The row that is being made: it stands in the buffer and lacks its values and what belongs to its end.
  struct PendingRow {
    RowKind kind = RowKind::Step;
    int place = 0;
    bool valuesDone = false;
  };
  void MakeColumn(int i);
  void MakeBar(int col);
  void CarryValues();
  void Carry(int obs, int row);
  void WriteEventCells(int row, int obs);
  void WriteText(int row, int obs);
  void FinishStepRow(int place);
  void FinishEventRow(int place);
  void TakeFix(int place);
  void DropOldest();
  bool BufferFull() const;
  bool EditEventCell(int obs);
  bool EditNumberCell(int obs);
  bool EditTextCell(int obs);
  void LoadValue(int obs, bool stepRow, bool own);

  RunContext& ctx;
  Asking& asking;
  Storing& storing;
  std::deque<ParBar> ParBars; // one a column, the step bar first
  std::optional<PendingRow> pending;
};

} // namespace trekor
