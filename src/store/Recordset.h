// A cursor over the rows of a table or a query, with a buffer for adding and editing a row. Any move drops the buffer.
//
// Fields are addressed by name or by place (0-based). A name without a table finds the first field of that name,
// without regard to case; in a join "Observations.ObsCode" names the table too. Reading a missing field, or any field
// where there is no current row, gives null.
//
// Between calls a recordset holds no lock on the file. The rows of a query are read at once and kept, those of a table
// a few at a time.
//
// It belongs to its Database and must be destroyed before that is closed. Nothing throws.
#pragma once

#include "store/FieldValue.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace trekor {

class Database;

class Recordset {
public:
  ~Recordset();
  Recordset(const Recordset&) = delete;
  Recordset& operator=(const Recordset&) = delete;

  // The index that orders a table-type recordset and that Seek uses ("SessionID", "NameIndex", ...). A primary key may
  // be named by its first field. False when the table has no such index.
  bool SetIndex(const std::string& name);
  // Finds a row whose first field of the current index equals the key; text compares without case. False when there is
  // none or no index was set; the position then stays.
  bool Seek(const FieldValue& key);

  bool Eof() const;
  void MoveFirst();
  void MoveNext();
  void MoveLast();
  // All rows of the recordset, exact also for a sorted join. Kept for the editors, with Delete: nothing else counts
  // rows.
  int RecordCount();
  // Runs the query again (a table is read again) and goes to the first row. False when that fails; a query then keeps
  // the rows that it had.
  bool Requery();
  // Whether something could not be read (a lock, a damaged page) since the last MoveFirst, MoveLast, Requery or Seek.
  // When true, an end of the rows, a Seek without a match or a null says nothing about the file.
  bool Failed() const;

  int FieldCount() const;
  std::string FieldName(int place) const;
  int FieldPlace(std::string_view name) const; // -1 when missing
  bool HasField(std::string_view name) const { return FieldPlace(name) >= 0; }
  // While a row is added or edited: the buffer; otherwise the current row.
  FieldValue Get(std::string_view name) const;
  FieldValue Get(int place) const;

  // Begins a new row in the buffer: defaults filled in, an automatic key already known and readable, `atLeast` or
  // above. The key is used up even when the row is never stored. False for a join, for a query that can only be read,
  // and when the key can't be had from the file.
  bool AddNew(std::int64_t atLeast = 0);
  // Copies the current row into the buffer. False when there is none, or the query can only be read.
  bool Edit();
  // Writes into the buffer; false (buffer unchanged) when the field is missing, not of this table, or the value does
  // not fit its type (a SMALLINT outside 16 bits, a text that is no number). A text longer than its field is cut,
  // counted in characters. Whole-number fields take reals rounded to nearest, ties to even.
  bool Set(std::string_view name, const FieldValue& value);
  bool Set(int place, const FieldValue& value);
  // Adds bytes behind those that a LONGBINARY field of the buffer already holds.
  bool AppendChunk(std::string_view name, const unsigned char* bytes, std::size_t count);
  // Stores the buffer; in a join each field goes into its own table. After a failure the buffer is kept. An added row
  // does not become the current one (MoveLast goes to it).
  bool Update();
  // Drops the buffer.
  void CancelUpdate();
  // For the editors, which are still to come. Deletes the current row, in a join that of the first table. There is no
  // current row then until MoveNext goes to the next one.
  bool Delete();

private:
  friend class Database;
  Recordset();
  struct Parts;
  std::unique_ptr<Parts> parts;
};

} // namespace trekor
