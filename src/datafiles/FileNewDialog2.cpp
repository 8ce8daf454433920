#include "datafiles/FileNewDialog2.h"

#include "datafiles/BackupDrives.h"
#include "datafiles/NewNames.h"
#include "values/KeyCodes.h"
#include "values/Text.h"

#include <array>
#include <utility>

namespace trekor {
namespace {

constexpr int MessageFileExists = 401;
constexpr int BlinkInterval = 333, BlinkColour = 0xC00000, PlainColour = -1;
constexpr std::u32string_view RefusedCharacters = U"\\/:*?<>|\"";
constexpr const char* FolderAbove = "..";

std::string WithoutBackslash(std::string path) {
  if (!path.empty() && path.back() == '\\')
    path.pop_back();
  return path;
}

std::string FolderOver(const std::string& path) {
  const std::string above = path.substr(0, path.rfind('\\'));
  return above.size() == 2 ? above + "\\" : above; // the root of a drive keeps its backslash
}

bool IsRoot(const std::string& path) {
  return path.size() <= 3;
}

std::string StationUnitText(int code) {
  constexpr std::array<const char*, 6> texts = {"KILOMETERS", "METERS", "MILES", "MILES.FEET", "FEET", "YARDS"};
  return code >= 0 && code < static_cast<int>(texts.size()) ? texts[static_cast<std::size_t>(code)] : "";
}

} // namespace

FileNewDialog2::FileNewDialog2(ProgramState& programState, Platform& seams, TextDatabase& textDatabase,
                               MessageCatalogue& catalogue, Sections& road)
    : state(programState), platform(seams), texts(textDatabase), messages(catalogue), sections(road) {
  Assist = [this](int number) { messages.ShowMessage(number); };
  form.OnKeyDown = [this](int keyCode, int shift) { return Key(keyCode, shift); };
  form.OnQueryUnload = [this] {
    GiveWay();
    return false; // hidden only, the next file asks again
  };
  form.Texts2.OnKeyPress = [](char32_t c) {
    return RefusedCharacters.find(c) == std::u32string_view::npos ? c : U'\0';
  };
  form.DriveSelect.OnClick = [this] { ChooseDrive(); };
  form.DirectorySelect.OnDblClick = [this] { OpenFolder(); };
  form.FileSelect.OnClick = [this] { ProposeName(); };
  form.CmdOK.OnClick = [this] { CmdOK_Click(); };
  form.CmdCancel.OnClick = [this] { GiveWay(); };
  form.BlinkTimer.OnTimer = [this] { Blink(); };
}

bool FileNewDialog2::ShowDialog() {
  texts.LoadForm(form);
  state.file.DataName.clear(); // however the form is closed, only CmdOK and the link set a name
  accepted = false;
  Fill();
  form.BlinkTimer.SetInterval(BlinkInterval);
  form.BlinkTimer.SetRunning(true);
  platform.shell.SetFocus(form.Texts2);
  platform.shell.ShowModal(form);
  form.BlinkTimer.SetRunning(false);
  return accepted;
}

bool FileNewDialog2::Key(int keyCode, int shift) {
  if (texts.FormKeyDown(form, keyCode, shift))
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
  form.TestSetupLabel.SetCaption(state.TestSetupName);
  if (folder.empty() || !platform.drives.FolderExists(folder))
    folder = platform.drives.CurrentFolder();
  if (folder.find(':') == std::string::npos)
    folder = "C:\\";
  FillDrives();
  ChooseFolder(folder);
  ShowFileUnits();
  FillBackupList();
}

void FileNewDialog2::FillDrives() {
  const auto choose = std::exchange(form.DriveSelect.OnClick, nullptr); // the folder is chosen already
  form.DriveSelect.Clear();
  for (char letter = 'A'; letter <= 'Z'; ++letter)
    if (platform.drives.DriveExists(letter))
      form.DriveSelect.AddItem(std::string(1, letter) + ":");
  form.DriveSelect.SetText(Upper(folder.substr(0, 2)));
  form.DriveSelect.OnClick = choose;
}

void FileNewDialog2::ChooseDrive() {
  const std::string root = form.DriveSelect.Text() + "\\";
  if (platform.drives.FolderExists(root)) {
    ChooseFolder(root);
  } else { // a medium that was taken out
    folder = "C:\\";
    FillDrives();
    ChooseFolder(folder);
  }
  FillBackupList();
}

void FileNewDialog2::ChooseFolder(const std::string& path) {
  folder = IsRoot(path) ? path.substr(0, 2) + "\\" : WithoutBackslash(path);
  form.FullPathLabel.SetCaption(folder);
  form.DirectorySelect.Clear();
  if (!IsRoot(folder))
    form.DirectorySelect.AddItem(FolderAbove);
  for (const std::string& name : platform.drives.Folders(folder))
    form.DirectorySelect.AddItem(name);
  form.FileSelect.Clear();
  for (const std::string& name : platform.drives.Files(folder, "*.MDB"))
    form.FileSelect.AddItem(name);
}

void FileNewDialog2::OpenFolder() {
  const std::string name = form.DirectorySelect.List(form.DirectorySelect.ListIndex());
  if (name == FolderAbove)
    ChooseFolder(FolderOver(folder));
  else if (!name.empty())
    ChooseFolder(WithoutBackslash(folder) + "\\" + name);
}

// The next file of the series that the user has pointed at.
void FileNewDialog2::ProposeName() {
  const std::string inFolder = WithoutBackslash(folder) + "\\";
  const std::string path = inFolder + form.FileSelect.List(form.FileSelect.ListIndex());
  const std::string name = NextFreeName(path, platform.drives).substr(inFolder.size());
  form.Texts2.SetText(name.substr(0, name.rfind('.')));
}

void FileNewDialog2::FillBackupList() {
  FillBackupDrives(form.cboBackup, Upper(folder.substr(0, 1))[0], state.command, platform.drives);
}

// A label blinks when what is filed differs from what the user sees.
void FileNewDialog2::ShowFileUnits() {
  const UnitSettings& u = state.units;
  form.FiledUnitsLabel.SetCaption(u.FileUnitsSI() ? "METRIC" : "US/ENGLISH");
  form.FiledStationsLabel.SetCaption(StationUnitText(u.FileStationUnit));
  blinkUnits = u.FileUnitsUS != u.UnitsUS;
  blinkStations = u.FileStationUnit != u.StationUnit;
  bright = true;
  Blink();
}

void FileNewDialog2::Blink() {
  FollowRoad();
  bright = !bright;
  form.FiledUnitsLabel.SetForeColor(bright && blinkUnits ? BlinkColour : PlainColour);
  form.FiledStationsLabel.SetForeColor(bright && blinkStations ? BlinkColour : PlainColour);
}

// Stored in the state only after the form has closed: the link may have named a file of its own by then.
void FileNewDialog2::CmdOK_Click() {
  answer = {Trim(form.Texts2.Text()), WithoutBackslash(folder), ""};
  if (answer.name.empty())
    return GiveWay();
  const std::string path = answer.folder + "\\" + answer.name + ".MDB";
  if (platform.drives.FileExists(path) || BelongsToProgram(state, platform.drives, path))
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
  if (!platform.drives.FolderExists(backup) && !platform.drives.MakeFolder(backup)) {
    platform.shell.MsgBox("Could not create Backup folder: " + backup, form.Caption(), BoxIcon::Exclamation);
    return false;
  }
  if (!platform.drives.FileExists(backup + "\\" + answer.name + ".MDB"))
    return true;
  Assist(MessageFileExists);
  return false;
}

void FileNewDialog2::GiveWay() {
  if (!form.Shown)
    return;
  if (messages.form.Shown)
    platform.shell.Hide(messages.form);
  platform.shell.Hide(form);
}

void FileNewDialog2::TakeOver() {
  state.file.BackupPath = answer.backup;
  state.file.DataName = answer.name;
  state.file.DataPath = answer.folder;
  FollowRoad();
  SendFacilityAndSection();
}

// What the link says of the road while the form is shown goes into the boxes that the user has not typed in.
void FileNewDialog2::FollowRoad() {
  const FacilityRecord& now = state.facility;
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
