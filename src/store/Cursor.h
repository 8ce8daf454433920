// A bare forward walk over the result of a query, for the writing of large files: fields are read by place straight out
// of the library, nothing is copied and nothing converted. Everywhere else a Recordset is the right thing.
//
// Before the first Step, and once it has given false, there is no row and nothing may be read. A cursor must be gone
// before its database is closed.
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

  // Parameter n of the query, from 1; before the first Step or after Restart.
  void Bind(int n, std::int64_t value);
  // To the next row. False at the end, and for good after a failure.
  bool Step();
  void Restart();
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
