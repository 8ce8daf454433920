// The form that asks for the name and place of a new data file.
#pragma once

#include "datafiles/FileDialogRooms.h"
#include "datafiles/FileLists.h"
#include "datafiles/FolderNewDialog.h"
#include "datafiles/UnitLabels.h"
#include "forms/Form.h"
#include "options/Sections.h"

#include <array>
#include <functional>

namespace trekor {

struct FileNewForm : Form {
  FileNewForm() : Form("FileNewDialog2") {}
  ComboBox DriveSelect{*this, "DriveSelect", -1, Kind::DriveListBox};
  CommandButton CmdNewDir{*this, "CmdNewDir"};
  ListBox DirectorySelect{*this, "DirectorySelect", Kind::DirListBox};
  ListBox FileSelect{*this, "FileSelect", Kind::FileListBox};
  Label Labels0{*this, "Labels", 0}, Labels1{*this, "Labels", 1}, Labels2{*this, "Labels", 2},
      Labels9{*this, "Labels", 9}, Labels10{*this, "Labels", 10}, LabelSetup{*this, "LabelSetup"},
      LabelPath{*this, "LabelPath"}, LabelBackup{*this, "LabelBackup"}, LabelUnits{*this, "LabelUnits"},
      LabelFiles{*this, "LabelFiles"};
  TextBox Texts0{*this, "Texts", 0}, Texts1{*this, "Texts", 1}, Texts2{*this, "Texts", 2}, Texts9{*this, "Texts", 9},
      Texts10{*this, "Texts", 10};
  Label TestSetupLabel{*this, "TestSetupLabel"}, FullPathLabel{*this, "FullPathLabel"},
      FiledUnitsLabel{*this, "FiledUnitsLabel"}, FiledStationsLabel{*this, "FiledStationsLabel"};
  ComboBox cboBackup{*this, "cboBackup"};
  CommandButton CmdOK{*this, "CmdOK"}, CmdCancel{*this, "CmdCancel"};
  Timer BlinkTimer{*this, "BlinkTimer"};
};

class FileNewDialog2 {
public:
  FileNewDialog2(const FileDialogRooms& rooms, Sections& sections);
  // Shows the form modally. False when the user cancelled: state.file.DataName is then empty, unless the link has named
  // a file meanwhile. True when he named one; TakeOver then stores it in the state.
  bool ShowDialog();
  // Stores the accepted answer in the state and sends the road on the link. DataPath has no trailing backslash,
  // BackupPath is empty or an existing folder, and neither has a file of that name.
  void TakeOver();
  // Hides the form, as a cancel does, with the message or the question that is shown above it.
  void GiveWay();
  void Unload();
  // Tells the user, by a message's number, why a name was refused. Shows the message; the run sets it to speak or show,
  // as the options say.
  std::function<void(int number)> Assist;
  FileNewForm form;
  FolderNewDialog folderNew;

private:
  bool Key(int keyCode, int shift);
  void Fill();
  void CmdNewDir_Click();
  void TakeSeries();
  void FillBackupList();
  void ShowFileUnits();
  void CmdOK_Click();
  bool ChooseBackup();
  void FollowRoad();
  void SendFacilityAndSection();

  FileDialogRooms rooms;
  Sections& sections;
  FileLists lists;
  UnitLabels unitLabels{form.FiledUnitsLabel, form.FiledStationsLabel};
  bool accepted = false;
  struct Answer {
    std::string name, folder, backup;
  } answer;
  std::array<std::string, 4> road; // as last written to the boxes
};

} // namespace trekor
