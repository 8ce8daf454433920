// The program's own folders, filled from the shipped files: at the first start of a release, and again when the shipped
// files have changed. Later starts compare names, sizes and times only.
//
//   Shipped (beside the executable in ../share/trekor)        goes to
//     every .vdb, in templates/ too                           the program's folder
//     Graphics, Audio, builtin and all other files            the same folders below the program's folder
//     Hardware.vdb                                            C:\Veldmark\Trekor\VDB as well
#pragma once

#include "platform_os/FileDrives.h"

#include <filesystem>
#include <string>

namespace trekor {

// Where the files of this release lie: ../share/trekor beside the executable, empty when there is no such folder.
std::filesystem::path ShippedFolder(const std::filesystem::path& executable);

// Makes the folders of the data, too. True when all folders are there and filled; without shipped files they are made
// and nothing is copied.
bool FillProgramFolder(FileDrives& drives, const std::filesystem::path& shipped, const std::string& release);

} // namespace trekor
