// Stores, changes and deletes rows of one table for a recordset. The insert is prepared once for the life of the
// recordset. Private to this room.
#pragma once

#include "store/RowCursor.h"

#include <string>
#include <vector>

namespace trekor {

class RowWriter {
public:
  // Writes the columns of `shape` that come from its table number `source`.
  RowWriter(Engine& onEngine, const Shape& shape, int source);

  // `values` holds a value for each column of the shape. `number` becomes the new row's number.
  bool Insert(const std::vector<FieldValue>& values, std::int64_t& number);
  // Writes only the columns marked in `touched`, so that what others wrote into the rest is kept. True when none is
  // marked. `number` follows when the key itself was changed.
  bool Change(const std::vector<FieldValue>& values, const std::vector<char>& touched, std::int64_t& number);
  bool Erase(std::int64_t number);

private:
  const Column& ColumnAt(std::size_t place) const { return shape.columns[place]; }
  bool PrepareInsert();
  bool NumberComesByItself(std::size_t place, const FieldValue& value) const;
  bool PrepareChange(const std::vector<char>& touched);

  Engine& engine;
  const Shape& shape;
  const SourceTable& table;
  std::vector<std::size_t> places; // of the shape's columns
  Statement insert, change, erase;
  std::string changeText;
};

} // namespace trekor
