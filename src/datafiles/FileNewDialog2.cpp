#include "datafiles/FileNewDialog2.h"

#include "datafiles/BackupDrives.h"
#include "datafiles/DataFiles.h"
#include "datafiles/NewNames.h"
#include "datafiles/SessionPreview.h"
#include "values/KeyCodes.h"
#include "values/Text.h"

#include <array>

namespace trekor {
namespace {

constexpr int MessageFileExists = 401;
} // namespace

FileNewDialog2::FileNewDialog2(const FileDialogRooms& dialogRooms, Sections& road)
    : folderNew(dialogRooms), rooms(dialogRooms), sections(road),
      lists(rooms.platform.drives, {form.DriveSelect, form.DirectorySelect, form.FileSelect}, rooms.folder) {
  Assist = [this](int number) { rooms.messages.ShowMessage(number); };
  form.OnKeyDown = [this](int keyCode, int shift) { return Key(keyCode, shift); };
  form.OnQueryUnload = [this] {
    GiveWay();
    return false; // hidden only, the next file asks again
  };
  form.Texts2.OnKeyPress = RefuseInNames;
  form.CmdNewDir.OnClick = [this] { CmdNewDir_Click(); };
  lists.OnFolder = [this] { form.FullPathLabel.SetCaption(lists.Folder()); };
  lists.OnDrive = [this] { FillBackupList(); };
  form.FileSelect.OnClick = [this] { TakeSeries(); };
  form.CmdOK.OnClick = [this] { CmdOK_Click(); };
  form.CmdCancel.OnClick = [this] { GiveWay(); };
  form.BlinkTimer.OnTimer = [this] {
    FollowRoad();
    unitLabels.Blink();
  };
}

bool FileNewDialog2::ShowDialog() {
  rooms.texts.LoadForm(form);
  rooms.state.file.DataName.clear(); // however the form is closed, only CmdOK and the link set a name
  accepted = false;
  Fill();
  form.BlinkTimer.SetInterval(BlinkMilliseconds);
  form.BlinkTimer.SetRunning(true);
  rooms.platform.shell.SetFocus(form.Texts2);
  rooms.platform.shell.ShowModal(form);
  form.BlinkTimer.SetRunning(false);
  return accepted;
}

bool FileNewDialog2::Key(int keyCode, int shift) {
  if (rooms.texts.FormKeyDown(form, keyCode, shift))
    return true;
  if (keyCode == keys::Enter)
    CmdOK_Click();
  else if (keyCode == keys::Esc || keyCode == keys::F4)
    GiveWay();
  else
    return false;
  return true;
}

void FileNewDialog2::Fill() {
  for (TextBox* box : {&form.Texts0, &form.Texts1, &form.Texts2, &form.Texts9, &form.Texts10})
    box->SetText("");
  road = {};
  FollowRoad();
  form.TestSetupLabel.SetCaption(rooms.state.TestSetupName);
  lists.Fill();
  ShowFileUnits();
  FillBackupList();
}

// The folder that could not be made is not there to be chosen; its parent then stays.
void FileNewDialog2::CmdNewDir_Click() {
  const std::string name = folderNew.Ask();
  if (name.empty() || !form.Shown)
    return;
  const std::string path = lists.Path(name);
  lists.ChooseFolder(rooms.platform.drives.MakeFolder(path) ? path : lists.Folder());
}

// The next file of the series that the user has pointed at continues its last session.
void FileNewDialog2::TakeSeries() {
  const std::string path = lists.Path(lists.Selected());
  if (lists.Selected().empty())
    return;
  const std::string name = NextFreeName(path, rooms.platform.drives).substr(lists.Path("").size());
  form.Texts2.SetText(name.substr(0, name.rfind('.')));
  SessionPreview last;
  if (!PreviewDataFile(rooms.platform.drives.NativePath(path), last))
    return; // nothing to continue: what the user has entered stays
  form.Texts0.SetText(last.FacilityName);
  form.Texts1.SetText(last.SectionName);
  form.Texts9.SetText(last.Start);
  form.Texts10.SetText(last.End);
  form.TestSetupLabel.SetCaption(last.TestSetup);
}

void FileNewDialog2::FillBackupList() {
  FillBackupDrives(form.cboBackup, lists.Drive(), rooms.state.command, rooms.platform.drives);
}

// What is filed may differ from what the user sees.
void FileNewDialog2::ShowFileUnits() {
  const UnitSettings& u = rooms.state.units;
  unitLabels.Show({u.FileUnitsUS, u.FileStationUnit, u.FileUnitsUS != u.UnitsUS, u.FileStationUnit != u.StationUnit});
}

// Stored in the state only after the form has closed: the link may have named a file of its own by then.
void FileNewDialog2::CmdOK_Click() {
  answer = {Trim(WithoutRefused(form.Texts2.Text())), lists.DataPath(), ""};
  if (answer.name.empty())
    return GiveWay();
  const std::string path = answer.folder + "\\" + answer.name + ".MDB";
  if (!rooms.platform.drives.FileMissing(path) || BelongsToProgram(rooms.state, rooms.platform.drives, path))
    return Assist(MessageFileExists);
  accepted = ChooseBackup();
  if (accepted)
    GiveWay();
}

// The same folder on the other drive; one level of it is made. False: the user has been told why not.
bool FileNewDialog2::ChooseBackup() {
  if (form.cboBackup.ListIndex() <= 0)
    return true;
  const std::string backup = answer.backup = form.cboBackup.Text().substr(0, 1) + answer.folder.substr(1);
  if (!rooms.platform.drives.FolderExists(backup) && !rooms.platform.drives.MakeFolder(backup)) {
    rooms.platform.shell.MsgBox("Could not create Backup folder: " + backup, form.Caption(), BoxIcon::Exclamation);
    return false;
  }
  if (rooms.platform.drives.FileMissing(backup + "\\" + answer.name + ".MDB"))
    return true;
  Assist(MessageFileExists);
  return false;
}

void FileNewDialog2::GiveWay() {
  if (!form.Shown)
    return;
  folderNew.GiveWay();
  if (rooms.messages.form.Shown)
    rooms.platform.shell.Hide(rooms.messages.form);
  rooms.platform.shell.Hide(form);
}

void FileNewDialog2::Unload() {
  rooms.texts.UnloadForm(form);
  folderNew.Unload();
}

void FileNewDialog2::TakeOver() {
  rooms.state.file.BackupPath = answer.backup;
  rooms.state.file.DataName = answer.name;
  rooms.state.file.DataPath = answer.folder;
  FollowRoad();
  SendFacilityAndSection();
}

// What the link says of the road while the form is shown goes into the boxes that the user has not typed in.
void FileNewDialog2::FollowRoad() {
  const FacilityRecord& now = rooms.state.facility;
  const std::array<const std::string*, 4> told = {&now.FacilityName, &now.SectionName, &now.SectionStart,
                                                  &now.SectionEnd};
  const std::array<TextBox*, 4> boxes = {&form.Texts0, &form.Texts1, &form.Texts9, &form.Texts10};
  for (std::size_t i = 0; i < road.size(); ++i) {
    if (road[i] != *told[i] && boxes[i]->Text() == road[i])
      boxes[i]->SetText(*told[i]);
    road[i] = *told[i];
  }
}

void FileNewDialog2::SendFacilityAndSection() {
  sections.SetFacilityName(form.Texts0.Text());
  sections.SetSectionName(form.Texts1.Text());
  sections.SetSectionStart(form.Texts9.Text());
  sections.SetSectionEnd(form.Texts10.Text());
}

} // namespace trekor
