// The inside of a Database: the connection, the layouts of its tables, the counters of their automatic keys, the
// transaction. Private to this room.
#pragma once

#include "store/Database.h"
#include "store/Statement.h"
#include "store/TableLayout.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace trekor {

// What all recordsets of one table share.
struct TableState {
  std::uint64_t changes = 0;  // rises with each change of a row
  std::int64_t counter = 0;   // highest number that an automatic key was given
  std::int64_t stored = 0;    // highest number that the file has given; true while counterKnown
  bool counterKnown = false;  // counter and stored are read, and the file is locked for us alone
  std::int64_t lastAdded = 0; // key of the last row of the table; 0 when not known
};

class Engine {
public:
  Engine(std::string nativePath, OpenMode openMode);
  ~Engine();
  Engine(const Engine&) = delete;
  Engine& operator=(const Engine&) = delete;

  bool Open();
  void Close();
  // Opens a new file, which is empty still, and runs statements on it.
  bool Fill(const std::string& sql);

  std::shared_ptr<const TableLayout> Layout(const std::string& table); // empty when there is no such table
  TableState& State(const std::string& table);
  void ForgetLayouts(); // after statements that may have changed tables or rows
  std::uint64_t AllChanges() const { return allChanges; }

  // The next automatic key of a table, `atLeast` or above. Each call uses one up. 0 when the file could not be read.
  std::int64_t NextNumber(const TableLayout& layout, TableState& state, std::int64_t atLeast);

  bool Begin();
  bool Commit();
  void Rollback();
  // False when the transaction can no longer be stored whole: the file failed within it, or the library has taken it
  // back already, so that a row stored now would be a transaction of its own.
  bool MayWrite() const;
  // How often the file has failed since it was opened: a lock, a full disk, an unreadable page. Wrong queries do not
  // count.
  int Failures() const { return failures; }

  bool Execute(const std::string& sql);
  // Keeps the library's message (or the given one) and tells it when TREKOR_TRACE is set. Always false.
  bool Fail(const std::string& doing);
  bool FailWith(const std::string& message);

  sqlite3* db = nullptr;
  const std::string path;
  const OpenMode mode;
  std::string lastError;

private:
  friend class Statement;
  // How the library reads what lies beside the file.
  enum class Log { Usual, Ignored, ReadOnly };
  bool Connect(Log log);
  bool OpenUntouched();
  bool Prepare();
  bool PrepareDurable();
  bool PrepareExclusive();
  void ReserveLog();
  bool FoldLeftLog();
  std::string PragmaText(const std::string& pragma);

  std::vector<Statement*> statements;
  std::map<std::string, std::shared_ptr<const TableLayout>> layouts;
  std::map<std::string, TableState> states;
  std::uint64_t allChanges = 0;
  int depth = 0; // of Begin and Commit
  int failures = 0;
  bool broken = false; // the file failed within the transaction
  bool hasLog = false; // written through a log; Close folds it back
  Statement begin, commit, sequence;
};

// Whether a log or a rollback journal with content lies beside the database, as after a kill.
bool HasLeftovers(const std::string& nativePath);

} // namespace trekor
