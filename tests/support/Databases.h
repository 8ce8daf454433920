// Databases on the fake drives, made from statements or from the texts of the released templates. For tests of rooms
// that use store.
#pragma once

#include "state/ProgramState.h"
#include "store/Database.h"
#include "store/Recordset.h"
#include "support/FakePlatform.h"
#include "support/Places.h"

#include <stdexcept>
#include <string>

namespace trekor::tests {

inline std::string TemplateText(const std::string& name) {
  return BytesOf(SourcePlace("/templates/") + name + ".sql");
}

// Over an existing one.
inline void MakeDatabase(FakeDrives& drives, const std::string& path, const std::string& sql) {
  const std::string native = drives.NativePath(path);
  WriteBytes(native, "");
  std::filesystem::remove(native);
  // Nothing here must survive a power cut, and a test should not wait for the disk.
  const std::string quick = "PRAGMA synchronous = OFF; BEGIN; " + sql + "; COMMIT;";
  if (!Database::Create(native, "") || !Database::Open(native, OpenMode::Shared)->Execute(quick))
    throw std::runtime_error("no database " + path);
}

// The rows of a table or a query, a line each, the fields in their order; bytes show as their number.
inline std::string RowsOf(Database& database, const std::string& what) {
  const auto rows = what.find(' ') == std::string::npos ? database.OpenTable(what) : database.OpenQuery(what);
  std::string text;
  for (; rows && !rows->Eof(); rows->MoveNext())
    for (int i = 0; i < rows->FieldCount(); ++i) {
      const FieldValue value = rows->Get(i);
      text += value.IsNull() ? "null" : value.IsBytes() ? std::to_string(value.Blob().size()) + " bytes" : value.Text();
      text += i + 1 < rows->FieldCount() ? '|' : '\n';
    }
  return rows ? text : database.LastError();
}

inline void FillFolders(FakePlatform& fakes, FolderPaths& folders) {
  folders.programName = "Trekor";
  folders.AppPath = "C:\\Trekor";
  folders.RootFolder = "C:\\Veldmark\\Trekor";
  folders.VdbFolder = folders.RootFolder + "\\VDB";
  folders.MdbFolder = folders.RootFolder + "\\MDB";
  folders.SharedMdbFolder = "C:\\Veldmark\\Parcels\\MDB";
  for (const auto& folder : {folders.AppPath, folders.VdbFolder, folders.MdbFolder, folders.SharedMdbFolder})
    fakes.drives.MakeFolders(folder);
}

} // namespace trekor::tests
