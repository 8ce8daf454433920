// The list of drives that may receive the copies of a data file.
#pragma once

#include "forms/Controls.h"
#include "platform/Drives.h"
#include "state/ProgramState.h"

namespace trekor {

// Shares of the control centre's machine begin with these characters; with /R no backup goes there.
constexpr const char* ControlCentreShare = "\\\\VCC";

// "No Backup" and a row "E:" for each drive but the one of the data. The former choice stays when it is still there;
// otherwise the next drive behind the data's is chosen, or the last one before it, unless "No Backup" had been chosen.
void FillBackupDrives(ComboBox& list, char dataDrive, const CommandLineFlags& command, Drives& drives);

} // namespace trekor
