// The position of a recordset among its rows. One kind walks a table along an index, the other the result of a query.
// Private to this room.
#pragma once

#include "store/Engine.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace trekor {

// One column of a recordset.
struct Column {
  std::string name, table; // no table: computed
  FieldDefinition field;
  int source = -1;      // which of the recordset's tables; -1: none
  int layoutPlace = -1; // place of the field in that table
};

struct SourceTable {
  std::shared_ptr<const TableLayout> layout;
  TableState* state = nullptr;
};

struct Shape {
  std::vector<Column> columns;
  std::vector<SourceTable> tables; // those whose rows can be written
};

struct Row {
  std::vector<std::int64_t> numbers; // the row's own number in each table
  std::vector<FieldValue> values;
  bool loaded = true;
  bool deleted = false;
};

class RowCursor {
public:
  RowCursor() = default;
  virtual ~RowCursor() = default;
  RowCursor(const RowCursor&) = delete;
  RowCursor& operator=(const RowCursor&) = delete;

  virtual bool Eof() const = 0;
  virtual void MoveFirst() = 0;
  virtual void MoveNext() = 0;
  virtual void MoveLast() = 0;
  virtual int RecordCount() = 0;
  // False, and the rows of a query are what they were, when they could not be read.
  virtual bool Requery() = 0;
  virtual bool SetIndex(const std::string&) { return false; }
  virtual bool Seek(const FieldValue&) { return false; }

  // Whether the position is on a row that can be read.
  virtual bool HasRow() = 0;
  virtual FieldValue Value(int place) = 0;
  // The current row, independent of any running statement, so that it can be written. Null when there is none; valid
  // until the next call.
  virtual Row* Hold() = 0;
  // The row of Hold was stored with these values; was deleted.
  virtual void Changed(const Row& row) = 0;
  virtual void Deleted() = 0;
  // A row was stored; the position stays.
  virtual void Added(std::int64_t, const std::vector<FieldValue>&) {}

  bool Failed() const { return failed; }

protected:
  bool failed = false; // some read, since the last move that does not start from the position
};

} // namespace trekor
