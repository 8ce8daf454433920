// Builds one database from SQL texts: make_template OUT IN.sql [IN.sql ...]
//
// The same texts give the same bytes: no time, no random, one transaction, the freshest layout. Whatever the engine
// merely grumbles about (a string in double quotes that it takes for a name, say) stops the build, as no one reads a
// grumble.
#include <sqlite3.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>
#include <string>

namespace {

struct Closer {
  void operator()(sqlite3* db) const { sqlite3_close(db); }
  void operator()(sqlite3_stmt* s) const { sqlite3_finalize(s); }
};
using Connection = std::unique_ptr<sqlite3, Closer>;
using Statement = std::unique_ptr<sqlite3_stmt, Closer>;

// Counts what the engine logs; errors come that way too, before the failing call returns.
void Grumble(void* count, int code, const char* text) {
  ++*static_cast<int*>(count);
  std::cerr << "make_template: engine says (" << code << "): " << text << "\n";
}

bool Execute(sqlite3* db, const char* sql) {
  char* why = nullptr;
  if (sqlite3_exec(db, sql, nullptr, nullptr, &why) == SQLITE_OK)
    return true;
  std::cerr << "make_template: " << sql << ": " << (why ? why : "") << "\n";
  sqlite3_free(why);
  return false;
}

// True when the query's first field reads "ok", as the engine's self-tests answer.
bool SaysOk(sqlite3* db, const char* query) {
  sqlite3_stmt* raw = nullptr;
  sqlite3_prepare_v2(db, query, -1, &raw, nullptr);
  const Statement statement(raw);
  return sqlite3_step(raw) == SQLITE_ROW &&
         std::string("ok") == reinterpret_cast<const char*>(sqlite3_column_text(raw, 0));
}

bool ReadAll(const std::string& path, std::string& text) {
  std::ifstream in(path, std::ios::binary);
  text.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
  return in.good() || in.eof();
}

// Statement by statement, so that a fault is told with its line.
bool RunText(sqlite3* db, const std::string& path) {
  std::string text;
  if (!ReadAll(path, text) || text.empty()) {
    std::cerr << path << ": cannot be read\n";
    return false;
  }
  for (const char* next = text.c_str(); *next;) {
    const char* tail = nullptr;
    sqlite3_stmt* raw = nullptr;
    int result = sqlite3_prepare_v2(db, next, -1, &raw, &tail);
    const Statement statement(raw);
    while (result == SQLITE_OK && raw && (result = sqlite3_step(raw)) == SQLITE_ROW)
      result = SQLITE_OK;
    if (result != SQLITE_OK && result != SQLITE_DONE) {
      const std::ptrdiff_t offset = std::max(0, sqlite3_error_offset(db));
      std::cerr << path << ":" << 1 + std::count(text.c_str(), next + offset, '\n') << ": " << sqlite3_errmsg(db)
                << "\n";
      return false;
    }
    next = tail;
  }
  return true;
}

bool Build(const std::string& out, int textCount, char** texts) {
  sqlite3* raw = nullptr;
  const int opened = sqlite3_open_v2(out.c_str(), &raw, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
  const Connection db(raw);
  if (opened != SQLITE_OK)
    return false;
  sqlite3_db_config(raw, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
  sqlite3_db_config(raw, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
  if (!Execute(raw, "PRAGMA page_size = 4096; PRAGMA encoding = 'UTF-8'; PRAGMA journal_mode = DELETE; "
                    "PRAGMA foreign_keys = OFF; BEGIN"))
    return false;
  for (int i = 0; i < textCount; ++i)
    if (!RunText(raw, texts[i]))
      return false;
  return Execute(raw, "COMMIT; VACUUM") && SaysOk(raw, "PRAGMA integrity_check");
}

} // namespace

int main(int argc, char** argv) {
  if (argc < 3) {
    std::cerr << "make_template OUT IN.sql [IN.sql ...]\n";
    return 2;
  }
  int grumbles = 0;
  sqlite3_config(SQLITE_CONFIG_LOG, Grumble, &grumbles);
  const std::filesystem::path out = argv[1];
  const std::filesystem::path half = out.string() + ".half"; // a failed build must not leave a younger file behind
  std::error_code ignored;
  std::filesystem::create_directories(out.parent_path(), ignored);
  std::filesystem::remove(half, ignored);
  const bool built = Build(half.string(), argc - 2, argv + 2);
  if (!built || grumbles > 0) {
    std::cerr << "make_template: " << argv[1] << " was not built\n";
    std::filesystem::remove(half, ignored);
    return 1;
  }
  std::filesystem::rename(half, out, ignored);
  return ignored ? 1 : 0;
}
