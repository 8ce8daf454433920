#include "store/Engine.h"

#include "store/FieldFit.h"
#include "store/InUse.h"
#include "store/LikePattern.h"
#include "values/Text.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include <sqlite3.h>

namespace trekor {

namespace {

// The largest wait of the operator's thread for another program's short write, milliseconds.
constexpr int BusyMilliseconds = 250;
// Pages that the log may hold before it is folded into the file: folding costs two more syncs, so it is made rare.
constexpr int LogPages = 1000;
// Pages that a large transaction may write beyond them before the log is folded.
constexpr int SparePages = 64;
// Bytes of the log: its head, then a head for each page.
constexpr std::int64_t LogHead = 32, LogPageHead = 24;
// The disk must have as many times the log's room free before the log takes it.
constexpr std::uintmax_t RoomBesideLog = 16;

std::string_view TextOf(sqlite3_value* value) {
  const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
  return text ? std::string_view(text, static_cast<std::size_t>(sqlite3_value_bytes(value))) : std::string_view();
}

// "text LIKE pattern" arrives as like(pattern, text).
void LikeFunction(sqlite3_context* context, int, sqlite3_value** values) {
  if (sqlite3_value_type(values[0]) == SQLITE_NULL || sqlite3_value_type(values[1]) == SQLITE_NULL)
    return sqlite3_result_null(context);
  sqlite3_result_int(context, LikeMatches(TextOf(values[0]), TextOf(values[1])) ? 1 : 0);
}

// Failures of the file itself; all others are faults of the query or of the row.
bool IsOfTheFile(int code) {
  constexpr int ofTheFile[] = {SQLITE_BUSY,     SQLITE_LOCKED,  SQLITE_NOMEM, SQLITE_READONLY,
                               SQLITE_IOERR,    SQLITE_CORRUPT, SQLITE_FULL,  SQLITE_CANTOPEN,
                               SQLITE_PROTOCOL, SQLITE_NOTADB,  SQLITE_PERM};
  return std::find(std::begin(ofTheFile), std::end(ofTheFile), code & 0xFF) != std::end(ofTheFile);
}

bool HasBytes(const std::string& path) {
  std::error_code error;
  const auto size = std::filesystem::file_size(path, error);
  return !error && size > 0;
}

std::string UriOf(const std::string& path) {
  std::string uri = "file:";
  for (const char c : path) {
    if (c == '?' || c == '#' || c == '%') {
      constexpr std::string_view digits = "0123456789ABCDEF";
      uri += '%';
      uri += digits[static_cast<unsigned char>(c) >> 4];
      uri += digits[static_cast<unsigned char>(c) & 15];
    } else {
      uri += c;
    }
  }
  return uri + "?immutable=1";
}

// The library's own name for the file system without locks.
const char* SystemWithoutLocks() {
  return sqlite3_vfs_find("unix-none") ? "unix-none" : "win32-none";
}

} // namespace

bool HasLeftovers(const std::string& nativePath) {
  return HasBytes(nativePath + "-wal") || HasBytes(nativePath + "-journal");
}

Engine::Engine(std::string nativePath, OpenMode openMode) : path(std::move(nativePath)), mode(openMode) {}

Engine::~Engine() {
  Close();
}

bool Engine::Fail(const std::string& doing) {
  if (!db || IsOfTheFile(sqlite3_errcode(db))) {
    ++failures;
    broken = depth > 0;
  }
  return FailWith(doing + ": " + (db ? sqlite3_errmsg(db) : "closed"));
}

bool Engine::FailWith(const std::string& message) {
  lastError = message;
  if (std::getenv("TREKOR_TRACE"))
    std::fprintf(stderr, "store: %s: %s\n", path.c_str(), message.c_str());
  return false;
}

// The library takes a file without a byte for an empty database; here it is a copy that was never finished.
bool Engine::Open() {
  std::error_code error;
  if (!std::filesystem::is_regular_file(path, error) || !HasBytes(path))
    return FailWith("no such file, or an empty one");
  if (mode == OpenMode::Untouched)
    return OpenUntouched();
  if (mode == OpenMode::ReadOnly && HasLeftovers(path))
    FoldLeftLog();
  if (Connect(Log::Usual) && Prepare()) {
    failures = 0; // a log that could not be folded is no harm to a reader
    return true;
  }
  // A file that was closed in a read-only folder may still be marked as one with a log. Without a log beside it the
  // file is complete and can be read as it is.
  const int why = db ? sqlite3_errcode(db) & 0xFF : SQLITE_OK;
  const bool readAsItIs =
      mode == OpenMode::ReadOnly && !HasLeftovers(path) && (why == SQLITE_CANTOPEN || why == SQLITE_READONLY);
  return readAsItIs && Connect(Log::Ignored) && Prepare();
}

// Only of a file that nobody holds, as no lock is taken while a log is read. A half-done change that would have to be
// taken back first can't be read so.
bool Engine::OpenUntouched() {
  const Sight sight = LookAt(path);
  if (sight == Sight::Free)
    return Connect(Log::Usual) && Prepare();
  if (sight != Sight::NeedsFolding || HasBytes(path + "-journal"))
    return FailWith("no database, in use or not whole");
  return Connect(HasBytes(path + "-wal") ? Log::ReadOnly : Log::Ignored) && Prepare();
}

bool Engine::Fill(const std::string& sql) {
  return Connect(Log::Usual) && Execute("BEGIN EXCLUSIVE; " + sql + "; COMMIT");
}

// Rows that a killed program had stored are still in the log; a read-only connection cannot fold them in.
bool Engine::FoldLeftLog() {
  Engine writer(path, OpenMode::Shared);
  const bool folded = writer.Open();
  writer.Close();
  return folded;
}

// A log can be read beside a file without the right to write only by who has all locks, and taking them needs that
// right: so there are no locks then. Nor is such a log folded at the end.
bool Engine::Connect(Log log) {
  if (db)
    sqlite3_close_v2(db);
  const bool readOnly = mode == OpenMode::ReadOnly || mode == OpenMode::Untouched;
  const int flags = (readOnly ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE) | SQLITE_OPEN_NOMUTEX |
                    (log == Log::Ignored ? SQLITE_OPEN_URI : 0);
  const std::string name = log == Log::Ignored ? UriOf(path) : path;
  if (sqlite3_open_v2(name.c_str(), &db, flags, log == Log::ReadOnly ? SystemWithoutLocks() : nullptr) != SQLITE_OK)
    return Fail("open");
  if (log == Log::ReadOnly) {
    sqlite3_db_config(db, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
    if (!Execute("PRAGMA locking_mode=EXCLUSIVE"))
      return false;
  }
  sqlite3_db_config(db, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
  sqlite3_db_config(db, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
  sqlite3_create_function(db, "like", 2, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, LikeFunction, nullptr, nullptr);
  return true;
}

// The lock mode comes before the first look into the file: then the lock is never given back in between, and the index
// of the log lives in memory instead of a third file.
bool Engine::Prepare() {
  const bool exclusive = mode == OpenMode::Exclusive || mode == OpenMode::ExclusiveDurable;
  if (exclusive && !Execute("PRAGMA locking_mode=EXCLUSIVE"))
    return false;
  if (!exclusive) // before the first look, which another program's commit can meet as well as any later one
    sqlite3_busy_timeout(db, BusyMilliseconds);
  if (!Execute("SELECT count(*) FROM sqlite_master"))
    return false;
  if (exclusive && !(mode == OpenMode::ExclusiveDurable ? PrepareDurable() : PrepareExclusive()))
    return false;
  // A log that a killed program has left: back to one plain file.
  if (mode == OpenMode::Shared && PragmaText("journal_mode") == "wal")
    Execute("PRAGMA journal_mode=DELETE");
  return true;
}

bool Engine::PrepareDurable() {
  if (sqlite3_db_readonly(db, "main") != 0)
    return FailWith("the file is read-only");
  if (PragmaText("journal_mode=WAL") != "wal")
    return Fail("log");
  hasLog = true;
  if (!Execute("PRAGMA synchronous=FULL") || !Execute("PRAGMA wal_autocheckpoint=" + std::to_string(LogPages)) ||
      !Execute("BEGIN EXCLUSIVE; COMMIT"))
    return false;
  ReserveLog();
  return true;
}

// A commit that lengthens the log makes the file system write the new length as well, and the sync takes twice as long.
// So all of its room is written here once, as zeros, which the library takes for the end of the log; commits then write
// over them. A disk that is nearly full keeps its room for the rows, the folding and the comma file: there the log
// grows as it is written.
void Engine::ReserveLog() {
  sqlite3_file* log = nullptr;
  sqlite3_int64 length = 0;
  if (sqlite3_file_control(db, "main", SQLITE_FCNTL_JOURNAL_POINTER, &log) != SQLITE_OK || !log || !log->pMethods ||
      log->pMethods->xFileSize(log, &length) != SQLITE_OK)
    return;
  const std::int64_t page = FieldValue(PragmaText("page_size")).Integer();
  const std::int64_t wanted = LogHead + (LogPages + SparePages) * (LogPageHead + page);
  std::error_code error;
  const std::string_view file = sqlite3_db_filename(db, "main");
  const auto disk = std::filesystem::space(std::u8string(file.begin(), file.end()), error);
  if (error || disk.available / RoomBesideLog < static_cast<std::uintmax_t>(wanted))
    return;
  const std::vector<char> zeros(std::size_t{64} * 1024);
  bool written = true;
  for (std::int64_t at = length; written && at < wanted; at += static_cast<std::int64_t>(zeros.size()))
    written = log->pMethods->xWrite(log, zeros.data(), static_cast<int>(zeros.size()), at) == SQLITE_OK;
  if (written)
    log->pMethods->xSync(log, SQLITE_SYNC_NORMAL);
  else
    log->pMethods->xTruncate(log, length);
}

bool Engine::PrepareExclusive() {
  if (PragmaText("journal_mode") == "wal" && PragmaText("journal_mode=DELETE") == "wal")
    return FailWith("the log could not be folded");
  return Execute("BEGIN EXCLUSIVE; COMMIT");
}

std::string Engine::PragmaText(const std::string& pragma) {
  Statement statement;
  return statement.Prepare(*this, "PRAGMA " + pragma) && statement.Step() ? statement.Column(0).Text() : std::string();
}

void Engine::Close() {
  if (!db)
    return;
  if (depth > 0)
    Rollback();
  while (!statements.empty())
    statements.back()->Finalize();
  if (hasLog) {
    Execute("PRAGMA wal_checkpoint(TRUNCATE)");
    Execute("PRAGMA journal_mode=DELETE");
  }
  sqlite3_close_v2(db);
  db = nullptr;
}

std::shared_ptr<const TableLayout> Engine::Layout(const std::string& table) {
  const std::string key = LowerName(table);
  if (const auto known = layouts.find(key); known != layouts.end())
    return known->second;
  auto layout = std::make_shared<TableLayout>();
  if (!db || !ReadLayout(*this, table, *layout))
    return nullptr;
  layouts[key] = layout;
  return layout;
}

TableState& Engine::State(const std::string& table) {
  return states[LowerName(table)];
}

void Engine::ForgetLayouts() {
  layouts.clear();
  ++allChanges;
  for (auto& [name, state] : states) {
    state.counterKnown = false;
    state.lastAdded = 0;
  }
}

std::int64_t Engine::NextNumber(const TableLayout& layout, TableState& state, std::int64_t atLeast) {
  if (!state.counterKnown) {
    if (!sequence.Ready())
      sequence.Prepare(*this, "SELECT seq FROM sqlite_sequence WHERE name=?", true);
    const FieldValue name(layout.name);
    sequence.Bind(1, name);
    state.stored = sequence.Step() ? sequence.Number(0) : 0;
    sequence.Reset();
    if (sequence.Failed())
      return 0;
    state.counter = std::max(state.counter, state.stored);
    state.counterKnown = mode == OpenMode::Exclusive || mode == OpenMode::ExclusiveDurable;
  }
  state.counter = std::max(state.counter + 1, atLeast);
  return state.counter;
}

bool Engine::Begin() {
  if (depth > 0)
    return ++depth > 0;
  if (!begin.Ready())
    begin.Prepare(*this, "BEGIN IMMEDIATE", true);
  if (!begin.Run())
    return false;
  broken = false;
  depth = 1;
  return true;
}

bool Engine::Commit() {
  if (depth == 0 || --depth > 0)
    return depth > 0;
  if (broken || sqlite3_get_autocommit(db) != 0) {
    Rollback();
    return FailWith("the transaction was taken back");
  }
  if (!commit.Ready())
    commit.Prepare(*this, "COMMIT", true);
  if (commit.Run())
    return true;
  const std::string why = lastError;
  Rollback();
  return FailWith(why);
}

void Engine::Rollback() {
  depth = 0;
  if (db && sqlite3_get_autocommit(db) == 0)
    Execute("ROLLBACK");
  ForgetLayouts();
}

bool Engine::MayWrite() const {
  return db && (depth == 0 || (!broken && sqlite3_get_autocommit(db) == 0));
}

bool Engine::Execute(const std::string& sql) {
  if (!db)
    return Fail("execute");
  return sqlite3_exec(db, sql.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK || Fail(sql);
}

} // namespace trekor
