// Walks a table along one of its indexes, or in the order of insertion. A few rows are read at a time and the statement
// is reset at once, so that no lock is held between calls. What this database writes into the table is seen at the next
// read. Private to this room.
#pragma once

#include "store/RowCursor.h"

#include <string>
#include <vector>

namespace trekor {

class TableCursor : public RowCursor {
public:
  // `shape` belongs to the recordset and lives longer; its columns are the fields of its only table, in order.
  TableCursor(Engine& onEngine, const Shape& ofShape);

  bool Eof() const override { return state == State::Empty || state == State::End; }
  void MoveFirst() override;
  void MoveNext() override;
  void MoveLast() override;
  int RecordCount() override;
  bool Requery() override;
  bool SetIndex(const std::string& name) override;
  bool Seek(const FieldValue& key) override;
  bool HasRow() override;
  FieldValue Value(int place) override;
  Row* Hold() override;
  void Changed(const Row& row) override;
  void Deleted() override;

private:
  enum class State { Empty, OnRow, Gap, End }; // Gap: where a row was that has been deleted

  const TableLayout& Layout() const { return *shape.tables[0].layout; }
  std::uint64_t Version() const { return engine.AllChanges() + shape.tables[0].state->changes; }
  const std::vector<IndexKey>& Keys() const;
  void StandOn(Statement& rows, int wanted);
  bool Prepare(Statement& statement, const std::string& condition, bool backwards);
  std::string Order(bool backwards) const;
  std::string After() const;
  void BindPosition(Statement& statement);
  bool Refresh();
  Row ReadRow(const Statement& rows) const;

  Engine& engine;
  const Shape& shape;
  const IndexLayout* order = nullptr; // none: the row's own number
  Statement first, last, after, find, one;
  std::vector<Row> window;
  std::size_t at = 0;        // in the window
  std::uint64_t version = 0; // of the table when the window was read
  int windowSize = 1;        // grows while the walk goes on undisturbed
  State state = State::Empty;
};

} // namespace trekor
