// Walks the rows of a query. The result is read whole at once: the file is free again afterwards, and the rows stay
// what they were while others write. For a million rows use Cursor. Private to this room.
#pragma once

#include "store/RowCursor.h"

#include <string>
#include <vector>

namespace trekor {

class QueryCursor : public RowCursor {
public:
  // `sql` is prepared as it stands; its first columns are those of the shape, followed by the row numbers of the
  // shape's tables.
  QueryCursor(Engine& onEngine, const Shape& ofShape, const std::string& sql);

  bool Eof() const override { return at >= held.size(); }
  void MoveFirst() override;
  void MoveNext() override;
  void MoveLast() override;
  int RecordCount() override;
  bool Requery() override;
  bool HasRow() override { return !Eof() && !held[at].deleted; }
  FieldValue Value(int place) override;
  Row* Hold() override { return HasRow() ? &held[at] : nullptr; }
  void Changed(const Row& row) override { held[at] = row; }
  void Deleted() override { held[at].deleted = true; }
  void Added(std::int64_t number, const std::vector<FieldValue>& values) override;

private:
  Row ReadRow() const;
  void SkipDeleted();

  const Shape& shape;
  Statement rows;
  std::vector<Row> held;
  std::size_t at = 0;
};

} // namespace trekor
