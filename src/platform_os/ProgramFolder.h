// The program's own folders, filled from what was shipped: at the first start of a release, and again when the shipped
// files have changed. Later starts look at names, sizes and times only.
//
// Shipped (beside the executable in ../share/trekor)        goes to
//   *.vdb and templates/*.vdb                               the program's folder
//   Graphics, Audio, builtin and what else there is         the same folders below the program's folder
//   Hardware.vdb                                            C:\Veldmark\Trekor\VDB as well
#pragma once

#include "platform_os/FileDrives.h"

#include <filesystem>
#include <string>

namespace trekor {

// Where the files of this release lie: ../share/trekor beside the executable, empty when there is no such folder.
std::filesystem::path ShippedFolder(const std::filesystem::path& executable);

// True when the folders are there and filled. Without shipped files the folders are made and stay as they are.
bool FillProgramFolder(FileDrives& drives, const std::filesystem::path& shipped, const std::string& release);

} // namespace trekor
