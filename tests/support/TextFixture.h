// A texts database on the fake drives: template and working file alike, so that opening it updates nothing.
// For rooms that stand on texts; links against store and texts.
#pragma once

#include "core/ProgramState.h"
#include "store/Database.h"
#include "support/FakePlatform.h"
#include "texts/Texts.h"

#include <stdexcept>
#include <string>
#include <vector>

namespace trekor::tests {

// The statements that make the table of a form; more columns as ", CapDanish TEXT(255)".
inline std::string FormTable(const std::string& form, const std::string& moreColumns = "") {
  return "CREATE TABLE " + form +
         " (Name TEXT(64) NOT NULL, \"Left\" INTEGER, Top INTEGER, Width INTEGER, Height INTEGER, Value TEXT(255), "
         "Visible BOOLEAN, Tag TEXT(16), CapEnglish TEXT(255), TipEnglish TEXT(255), HelpEnglish TEXT" +
         moreColumns + "); CREATE UNIQUE INDEX " + form + "_NameIndex ON " + form + "(Name COLLATE NOCASE);";
}

// The table of words; rows as "('W_ENTER', 'Enter'), ...".
inline std::string TextTable(const std::string& rows = "", const std::string& moreColumns = "") {
  return "CREATE TABLE Text (TextID TEXT(64), English TEXT(255)" + moreColumns +
         "); CREATE UNIQUE INDEX Text_TextID ON Text(TextID COLLATE NOCASE);" +
         (rows.empty() ? "" : "INSERT INTO Text VALUES " + rows + ";");
}

inline void MakeDatabase(FakeDrives& drives, const std::string& path, const std::string& sql) {
  const std::string native = drives.NativePath(path);
  // Nothing here must survive a power cut, and a test should not wait for the disk.
  const std::string quick = "PRAGMA synchronous = OFF; BEGIN; " + sql + " COMMIT;";
  if (!Database::Create(native, "") || !Database::Open(native, OpenMode::Shared)->Execute(quick))
    throw std::runtime_error("no database " + path);
}

inline void FillFolders(FakePlatform& fakes, FolderPaths& folders) {
  folders.ProgramName = "Trekor";
  folders.AppPath = "C:\\Trekor";
  folders.RootFolder = "C:\\Veldmark\\Trekor";
  folders.VdbFolder = folders.RootFolder + "\\VDB";
  folders.MdbFolder = folders.RootFolder + "\\MDB";
  folders.SharedMdbFolder = "C:\\Veldmark\\Parcels\\MDB";
  for (const auto& folder : {folders.AppPath, folders.VdbFolder, folders.MdbFolder, folders.SharedMdbFolder})
    fakes.drives.MakeFolders(folder);
}

// Fills the folders of the state and makes both files.
inline void MakeTextDatabase(FakePlatform& fakes, FolderPaths& folders, const std::string& sql = TextTable()) {
  FillFolders(fakes, folders);
  const std::string all =
      "CREATE TABLE Version (Major INTEGER, Minor INTEGER); INSERT INTO Version VALUES (2, 3);" + sql;
  MakeDatabase(fakes.drives, folders.AppPath + "\\Trekor.vdb", all);
  MakeDatabase(fakes.drives, folders.MdbFolder + "\\Trekor.mdb", all);
}

} // namespace trekor::tests
