#include "store/Database.h"

#include "store/Engine.h"
#include "store/FieldFit.h"
#include "store/RecordsetParts.h"

#include <cstdio>

namespace trekor {

namespace {

// Tables whose names begin so are the engine's own.
constexpr std::string_view OwnPrefix = "_engine";

} // namespace

struct Database::Parts {
  std::shared_ptr<Engine> engine;
};

Database::Database() : parts(std::make_unique<Parts>()) {}

Database::~Database() {
  Close();
}

std::unique_ptr<Database> Database::Open(const std::string& nativePath, OpenMode mode, std::string* error) {
  std::unique_ptr<Database> database(new Database());
  database->parts->engine = std::make_shared<Engine>(nativePath, mode);
  if (database->parts->engine->Open())
    return database;
  if (error)
    *error = database->parts->engine->lastError;
  return nullptr;
}

// Made first in the mode that fails when the file exists; the library then fills it.
bool Database::Create(const std::string& nativePath, const std::string& locale) {
  std::FILE* file = std::fopen(nativePath.c_str(), "wbx");
  if (!file)
    return false;
  std::fclose(file);
  Engine engine(nativePath, OpenMode::Exclusive);
  return engine.Fill("CREATE TABLE _engine_note(Locale TEXT); INSERT INTO _engine_note VALUES(" + LiteralOf(locale) +
                     ")");
}

void Database::Close() {
  if (parts->engine)
    parts->engine->Close();
}

bool Database::Failed() const {
  return parts->engine->Failures() > 0;
}

std::vector<std::string> Database::TableNames() const {
  std::vector<std::string> names;
  Statement rows;
  rows.Prepare(*parts->engine, "SELECT name FROM sqlite_master WHERE type='table' ORDER BY rowid");
  while (rows.Step()) {
    const std::string name = rows.Column(0).Text();
    if (!name.starts_with("sqlite_") && !name.starts_with(OwnPrefix))
      names.push_back(name);
  }
  return names;
}

bool Database::HasTable(const std::string& name) const {
  return parts->engine->Layout(name) != nullptr;
}

std::vector<FieldDefinition> Database::Fields(const std::string& table) const {
  const auto layout = parts->engine->Layout(table);
  return layout ? layout->fields : std::vector<FieldDefinition>();
}

std::vector<IndexDefinition> Database::Indexes(const std::string& table) const {
  std::vector<IndexDefinition> all;
  if (const auto layout = parts->engine->Layout(table))
    for (const IndexLayout& index : layout->indexes)
      all.push_back(index.definition);
  return all;
}

// A field of existing rows can only be required when it has a default for them.
bool Database::AppendField(const std::string& table, const FieldDefinition& field) {
  std::string text =
      "ALTER TABLE " + QuotedName(table) + " ADD COLUMN " + QuotedName(field.name) + " " + DeclarationOf(field);
  if (!field.defaultValue.IsNull())
    text += std::string(field.required ? " NOT NULL" : "") + " DEFAULT " + LiteralOf(field.defaultValue);
  return Execute(text);
}

std::unique_ptr<Recordset> Database::OpenTable(const std::string& name) {
  std::unique_ptr<Recordset> recordset(new Recordset());
  recordset->parts = std::make_unique<Recordset::Parts>(parts->engine);
  return recordset->parts->OpenTable(name) ? std::move(recordset) : nullptr;
}

std::unique_ptr<Recordset> Database::OpenQuery(const std::string& sql) {
  std::unique_ptr<Recordset> recordset(new Recordset());
  recordset->parts = std::make_unique<Recordset::Parts>(parts->engine);
  return recordset->parts->OpenQuery(sql) ? std::move(recordset) : nullptr;
}

bool Database::Execute(const std::string& sql) {
  const bool done = parts->engine->Execute(sql);
  parts->engine->ForgetLayouts();
  return done;
}

bool Database::Begin() {
  return parts->engine->Begin();
}

bool Database::Commit() {
  return parts->engine->Commit();
}

void Database::Rollback() {
  parts->engine->Rollback();
}

const std::string& Database::LastError() const {
  return parts->engine->lastError;
}

const std::string& Database::Path() const {
  return parts->engine->path;
}

sqlite3* Database::Handle() const {
  return parts->engine->db;
}

} // namespace trekor
