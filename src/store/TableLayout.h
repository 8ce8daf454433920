// One table as its file declares it. Private to this room.
#pragma once

#include "store/Database.h"

#include <string>
#include <vector>

namespace trekor {

class Engine;

struct IndexKey {
  int field = -1; // place in the layout
  bool descending = false;
};

struct IndexLayout {
  IndexDefinition definition; // without the table's prefix
  std::string storedName;     // "Measurements_NameIndex"; empty for the row's own number
  std::vector<IndexKey> keys;
};

struct TableLayout {
  std::string name;
  std::vector<FieldDefinition> fields;
  std::vector<IndexLayout> indexes;
  int numberField = -1; // the field that is the row's own number; -1: the number has no field

  int FieldPlace(std::string_view field) const;
  // As SetIndex looks for one: Table_Name first, then Name as it stands, then a key whose first field has that name.
  const IndexLayout* FindIndex(const std::string& wanted) const;
  bool HasAutoNumber() const { return numberField >= 0 && fields[static_cast<std::size_t>(numberField)].autoNumber; }
};

// False when the file has no such table, or can't be read.
bool ReadLayout(Engine& engine, const std::string& table, TableLayout& layout);

} // namespace trekor
