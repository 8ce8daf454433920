// Walks the rows of a query. A small result is read whole at once, so that the file is free again and the rows stay
// what they were while others are written; behind the first rows of a large result the statement itself is walked, and
// nothing is copied.
#pragma once

#include "store/RowCursor.h"

#include <string>
#include <vector>

namespace trekor {

class QueryCursor : public RowCursor {
public:
  // `sql` is prepared as it stands; its first columns are those of the shape, behind them stand the own numbers of the
  // shape's tables.
  QueryCursor(Engine& onEngine, const Shape& ofShape, std::string text);
  bool Ready() const { return rows.Ready(); }

  bool Bof() const override { return !Reads() && held.empty(); }
  bool Eof() const override { return !Reads() && at >= held.size(); }
  void MoveFirst() override;
  void MoveNext() override;
  void MoveLast() override;
  int RecordCount() override;
  void Requery() override;
  bool HasRow() override { return !Eof() && (at >= held.size() || !held[at].deleted); }
  FieldValue Value(int place) override;
  Row* Hold() override;
  void Changed(const Row& row) override;
  void Deleted() override;
  void Added(std::int64_t number, const std::vector<FieldValue>& values) override;

private:
  bool Reads() const { return reading && rows.Ready(); }
  Row ReadRow() const;
  void HoldRest();
  void SkipDeleted();

  Engine& engine;
  const Shape& shape;
  std::string sql;
  Statement rows;
  std::vector<Row> held;
  std::size_t at = 0;   // position among those held; at or behind their end the statement's own row is meant
  bool head = true;     // the rows held begin with the first one
  bool tail = true;     // and end with the last one
  bool reading = false; // the statement stands on a row behind those held
  bool passed = false;  // and no longer on the very next one
};

} // namespace trekor
