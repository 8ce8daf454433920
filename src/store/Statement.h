// A prepared statement. Closing the engine finalises it; after that Step and Run are false. Private to this room.
#pragma once

#include "store/Database.h"

#include <cstdint>
#include <string>

struct sqlite3_stmt;

namespace trekor {

class Engine;

class Statement {
public:
  Statement() = default;
  ~Statement();
  Statement(const Statement&) = delete;
  Statement& operator=(const Statement&) = delete;

  // `kept` tells the library that the statement will run many times.
  bool Prepare(Engine& onEngine, const std::string& sql, bool kept = false);
  bool Ready() const { return handle != nullptr; }
  // Places count from 1. A text or bytes are borrowed: the value must live until the statement has run.
  void Bind(int place, const FieldValue& value);
  void Bind(int place, std::int64_t number);
  // True: there is a row to read. At the end and after a failure the statement is reset, which gives its locks back.
  bool Step();
  // Whether the last Step gave false for another reason than the end of the rows.
  bool Failed() const { return failed; }
  // For statements without rows. False when it failed.
  bool Run();
  void Reset();
  void Finalize();
  // Columns count from 0.
  FieldValue Column(int column, FieldType type) const;
  FieldValue Column(int column) const; // by what is stored
  std::int64_t Number(int column) const;
  sqlite3_stmt* Handle() const { return handle; }

private:
  friend class Engine;
  Engine* engine = nullptr;
  sqlite3_stmt* handle = nullptr;
  bool failed = false;
};

} // namespace trekor
