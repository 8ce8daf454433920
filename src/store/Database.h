// The program's database engine: SQLite files behind the few operations that the program needs. This room is the only
// one that knows sqlite3.
//
// Paths are native. Field types are those declared in a table (SMALLINT, INTEGER, REAL, SINGLE, TEXT(n), DATETIME,
// BOOLEAN, LONGBINARY), and a recordset keeps what a type means: 16-bit range, single precision, text length, -1 and 0
// for a boolean. Text is UTF-8; text keys compare without case (NOCASE, so that any SQLite tool can open the file).
// Nothing throws: a failure is false or an empty pointer, and LastError says why (on standard error too when
// TREKOR_TRACE is set). A failed read is never an empty answer: Failed tells it from "there is none".
#pragma once

#include "store/FieldValue.h"

#include <memory>
#include <string>
#include <vector>

struct sqlite3;

namespace trekor {

class Recordset;

enum class FieldType { SmallInt, Integer, Real, Single, Text, DateTime, Boolean, LongBinary };

struct FieldDefinition {
  std::string name;
  FieldType type = FieldType::Text;
  int size = 0; // longest text in characters; 0: no limit
  bool required = false;
  bool autoNumber = false;
  FieldValue defaultValue = {};
};

// In a file an index is called Table_Name, as index names are shared by all tables of a file; here it is Name. A
// primary key without a name of its own is called by its first field. One that runs downwards (DESC) delivers its last
// row first.
struct IndexDefinition {
  std::string name; // as given to Recordset::SetIndex
  std::vector<std::string> fields;
  bool unique = false, primary = false;
};

enum class OpenMode {
  Shared,          // read and write, others may too
  ReadOnly,        // shared, no row is ever written; a log that a killed program left is folded into the file
  Untouched,       // read without a trace in the file or beside it; rows that are still in a log are read from there
  Exclusive,       // the lock is taken at once and kept
  ExclusiveDurable // Exclusive, and every transaction is on the disk when it ends: WAL, full synchronisation
};

class Database {
public:
  // Opens an existing file and reads its list of tables. Empty when the file is missing, empty, no database, damaged,
  // locked or not readable; `error` says which. Never creates one. An exclusive opening of a file that is read-only or
  // in use fails.
  static std::unique_ptr<Database> Open(const std::string& nativePath, OpenMode mode, std::string* error = nullptr);
  // Makes a new empty database; false when the file exists or cannot be made. `locale` is kept as a note in the file.
  static bool Create(const std::string& nativePath, const std::string& locale);
  ~Database(); // as Close
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;

  // Folds the log of a durable file back into it and closes. An open transaction is taken back. Recordsets must be
  // destroyed before.
  void Close();

  // Whether the file has failed since it was opened: locked, unreadable, damaged, full. A wrong query, or a row that
  // breaks a rule of its table, does not count.
  bool Failed() const;

  // Tables of users, without the engine's own, in the order of creation.
  std::vector<std::string> TableNames() const;
  bool HasTable(const std::string& name) const;
  std::vector<FieldDefinition> Fields(const std::string& table) const;
  std::vector<IndexDefinition> Indexes(const std::string& table) const;
  // Adds a column to an existing table. It is only made "required" when it has a default for the rows that are there.
  bool AppendField(const std::string& table, const FieldDefinition& field);

  // Empty when the table is missing, the query is wrong or can't be read. A recordset must not outlive its database.
  // Both stand on their first row. A plain "SELECT * FROM ..." can be edited; everything else can only be read. A query
  // without an order, and ties of one, come in the order of insertion; text sorts without case where the column was
  // declared COLLATE NOCASE.
  std::unique_ptr<Recordset> OpenTable(const std::string& name);
  std::unique_ptr<Recordset> OpenQuery(const std::string& sql);
  // Runs statements without a result (template building, tests).
  bool Execute(const std::string& sql);

  // One transaction around several updates; nested pairs count as one. Without it every Update is a transaction of its
  // own. When the file fails within it, later writes are refused and Commit takes everything back and is false. A row
  // that breaks a rule of its table is missing, and the rest is stored. Rollback ends all levels.
  bool Begin();
  bool Commit();
  void Rollback();

  const std::string& LastError() const; // for tests and for a developer's eye; the program acts on the failure alone
  const std::string& Path() const;      // native
  sqlite3* Handle() const;              // for this room and its measurements only

private:
  Database();
  struct Parts;
  std::unique_ptr<Parts> parts;
};

} // namespace trekor
