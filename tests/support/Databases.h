// Databases on the fake drives, out of statements or out of the texts that the released templates are made of.
// For rooms that stand on store.
#pragma once

#include "state/ProgramState.h"
#include "store/Database.h"
#include "support/FakePlatform.h"

#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>

namespace trekor::tests {

inline std::string BytesOf(const std::string& nativePath) {
  std::ostringstream bytes;
  bytes << std::ifstream(nativePath, std::ios::binary).rdbuf();
  return bytes.str();
}

inline std::string TemplateText(const std::string& name) {
  return BytesOf(TREKOR_SOURCE_DIR "/templates/" + name + ".sql");
}

inline void MakeDatabase(FakeDrives& drives, const std::string& path, const std::string& sql) {
  const std::string native = drives.NativePath(path);
  // Nothing here must survive a power cut, and a test should not wait for the disk.
  const std::string quick = "PRAGMA synchronous = OFF; BEGIN; " + sql + "; COMMIT;";
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

} // namespace trekor::tests
