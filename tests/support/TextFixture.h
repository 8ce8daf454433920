// A texts database on the fake drives; template and working file are the same, so that opening it updates nothing. For
// tests of rooms that use texts.
#pragma once

#include "support/Databases.h"
#include "texts/TextDatabase.h"

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

// Fills the folders of the state and makes both files.
inline void MakeTextDatabase(FakePlatform& fakes, FolderPaths& folders, const std::string& sql = TextTable()) {
  FillFolders(fakes, folders);
  const std::string all =
      "CREATE TABLE Version (Major INTEGER, Minor INTEGER); INSERT INTO Version VALUES (2, 3);" + sql;
  MakeDatabase(fakes.drives, folders.AppPath + "\\Trekor.vdb", all);
  MakeDatabase(fakes.drives, folders.MdbFolder + "\\Trekor.mdb", all);
}

} // namespace trekor::tests
