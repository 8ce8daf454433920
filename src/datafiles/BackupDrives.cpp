#include "datafiles/BackupDrives.h"

#include "values/Text.h"

namespace trekor {
namespace {

bool MayReceive(char letter, char dataDrive, const CommandLineFlags& command, Drives& drives) {
  if (letter == dataDrive || !drives.DriveExists(letter) || SameText(command.CmdDrive, std::string(1, letter)))
    return false;
  const std::string share = drives.ControlCentreShare();
  return !command.CmdR || share.empty() || !Upper(drives.RemoteName(letter)).starts_with(Upper(share));
}

int RowOf(const ComboBox& list, char letter) {
  for (int i = 1; i < list.ListCount(); ++i)
    if (list.List(i)[0] == letter)
      return i;
  return -1;
}

int FirstBehindElseLastBefore(const ComboBox& list, char dataDrive) {
  for (int i = 1; i < list.ListCount(); ++i)
    if (list.List(i)[0] > dataDrive)
      return i;
  return list.ListCount() - 1; // all stand before; "No Backup" when there is none
}

} // namespace

void FillBackupDrives(ComboBox& list, char dataDrive, const CommandLineFlags& command, Drives& drives) {
  const bool noBackup = list.ListIndex() == 0;
  const char former = list.ListIndex() > 0 ? list.List(list.ListIndex())[0] : ' ';
  list.Clear();
  list.AddItem("No Backup");
  for (char letter = 'C'; letter <= 'Z'; ++letter)
    if (MayReceive(letter, dataDrive, command, drives))
      list.AddItem(std::string(1, letter) + ":");
  if (const int row = RowOf(list, former); row > 0)
    list.SetListIndex(row);
  else
    list.SetListIndex(noBackup ? 0 : FirstBehindElseLastBefore(list, dataDrive));
}

} // namespace trekor
