// The list of drives that may receive the copies of a data file.
#pragma once

#include "forms/Controls.h"
#include "platform/Drives.h"
#include "state/ProgramState.h"

namespace trekor {

// Fills the list: "No Backup", and "E:" and so on for each drive that may be used, never that of the data, and with /R
// none that is a share of the control program's machine. The earlier
// choice stays when it is still there. Otherwise the next drive after the data's is chosen, or the last one before it;
// but "No Backup" stays chosen.
void FillBackupDrives(ComboBox& list, char dataDrive, const CommandLineFlags& command, Drives& drives);

} // namespace trekor
