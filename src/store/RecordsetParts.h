// The inside of a recordset. Private to this room.
#pragma once

#include "store/Recordset.h"
#include "store/RowCursor.h"
#include "store/RowWriter.h"

#include <memory>
#include <string>
#include <vector>

namespace trekor {

struct Recordset::Parts {
  enum class Buffer { None, Adding, Editing };

  explicit Parts(std::shared_ptr<Engine> onEngine) : engine(std::move(onEngine)) {}
  bool OpenTable(const std::string& name);
  bool OpenQuery(const std::string& sql);

  void Drop() { buffering = Buffer::None; }
  bool CanSet(int place) const;
  RowWriter& Writer(std::size_t source);
  bool StoreNew();
  bool StoreChanges();

  std::shared_ptr<Engine> engine; // first: everything below is destroyed before it
  Shape shape;
  std::unique_ptr<RowCursor> cursor;
  std::vector<std::unique_ptr<RowWriter>> writers; // one a table, made when first needed
  Buffer buffering = Buffer::None;
  std::vector<FieldValue> buffer; // a value for each column
  std::vector<char> touched;      // columns written since Edit

private:
  void Describe(const Statement& statement);
  int SourceOf(const std::string& table);
};

} // namespace trekor
