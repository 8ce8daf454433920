// A bare forward walk over the result of a query, for writing large files: fields are read by place straight from the
// library, without a copy or a conversion. Everything else uses a Recordset.
//
// There is no row before the first Step and after one that was false; fields may not be read then. A cursor must be
// destroyed before its database is closed.
#pragma once

#include "store/Database.h"

#include <cstdint>
#include <string>
#include <string_view>

struct sqlite3_stmt;

namespace trekor {

class Cursor {
public:
  Cursor(const Database& database, const std::string& sql);
  ~Cursor();
  Cursor(const Cursor&) = delete;
  Cursor& operator=(const Cursor&) = delete;

  // Parameter n of the query, from 1; before the first Step.
  void Bind(int n, std::int64_t value);
  // To the next row. False at the end or after a failure, and from then on.
  bool Step();
  bool Eof() const { return ended; }
  // The query was wrong, or the file could not be read to its end.
  bool Failed() const { return failed; }

  // Fields of the row, by place from 0. Null reads as 0 or the empty text.
  bool IsNull(int place) const;
  std::int64_t Integer(int place) const;
  double Real(int place) const;
  std::string_view TextView(int place) const; // until the next Step

private:
  sqlite3_stmt* statement = nullptr;
  bool ended = false, failed = false;
};

} // namespace trekor
