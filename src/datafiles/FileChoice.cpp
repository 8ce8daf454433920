#include "datafiles/FileChoice.h"

#include "values/KeyCodes.h"

namespace trekor {

FileChoice::FileChoice(const FileDialogRooms& dialogRooms, const FileChoiceControls& formControls, YesNoPrompt& prompt)
    : rooms(dialogRooms), controls(formControls), deletePrompt(prompt),
      lists(rooms.platform.drives,
            {controls.files.DriveSelect, controls.files.DirectorySelect, controls.files.FileSelect}, rooms.folder),
      pane(rooms.state, rooms.platform.drives, controls.session, controls.date) {
  controls.form.OnKeyDown = [this](int keyCode, int shift) { return Key(keyCode, shift); };
  OnCancel = [this] { GiveWay(); };
  controls.form.OnQueryUnload = [this] {
    OnCancel();
    return false; // hidden only, for the next time
  };
  lists.OnFolder = [this] {
    PreviewPassed = false;
    pane.ClearPreview();
    controls.files.FullPathLabel.SetCaption(lists.Folder());
  };
  ListBox& files = controls.files.FileSelect;
  files.OnClick = [this] { Preview(); };
  files.OnDblClick = [this] { AcceptPreviewed(); };
  files.OnKeyDown = [this](int keyCode, int) {
    if (keyCode == keys::Delete)
      Delete();
    return keyCode == keys::Delete;
  };
  controls.CmdOK.OnClick = [this] { Accept(); };
  controls.CmdCancel.OnClick = [this] { OnCancel(); };
}

void FileChoice::Show() {
  rooms.texts.LoadForm(controls.form);
  lists.Fill();
  controls.session.BlinkTimer.SetRunning(true);
  rooms.platform.shell.SetFocus(controls.files.FileSelect);
  rooms.platform.shell.ShowModal(controls.form);
  controls.session.BlinkTimer.SetRunning(false);
}

void FileChoice::GiveWay() {
  deletePrompt.GiveWay();
  if (controls.form.Shown)
    rooms.platform.shell.Hide(controls.form);
}

bool FileChoice::Key(int keyCode, int shift) {
  if (rooms.texts.FormKeyDown(controls.form, keyCode, shift) || FolderEnter(keyCode))
    return true;
  if (keyCode == keys::Enter && Working)
    return true;
  const Control* active = controls.form.ActiveControl;
  const bool button = active && active->TypeOf() == Kind::CommandButton; // Enter is its own
  if (keyCode == keys::Enter && !button)
    Accept();
  else if (keyCode == keys::Esc || keyCode == keys::F4)
    OnCancel();
  else
    return false;
  return true;
}

// Enter in the list of folders goes into one, as a double click does.
bool FileChoice::FolderEnter(int keyCode) {
  if (keyCode != keys::Enter || controls.form.ActiveControl != &controls.files.DirectorySelect)
    return false;
  lists.OpenFolder();
  return true;
}

void FileChoice::Preview() {
  PreviewPassed = !lists.Selected().empty() && pane.PreviewDataFile(lists.Path(lists.Selected()));
}

void FileChoice::AcceptPreviewed() {
  Preview(); // the second click may have met another entry than the first
  if (PreviewPassed)
    Accept();
}

void FileChoice::Accept() {
  if (controls.form.Shown && OnAccept)
    OnAccept();
}

// Only what has shown itself to be a data file, and only while this form is up: a file that the link has opened under
// the question is none of ours.
void FileChoice::Delete() {
  Preview();
  const std::string path = lists.Path(lists.Selected());
  if (!PreviewPassed || !deletePrompt.Ask(path) || !controls.form.Shown)
    return;
  // A log that a killed program has left would be played into the next file of that name.
  if (Drives& drives = rooms.platform.drives; drives.DeleteFile(path))
    for (const char* tail : {"-wal", "-shm", "-journal"})
      drives.DeleteFile(path + tail);
  lists.FillFiles();
  PreviewPassed = false;
  pane.ClearPreview();
}

} // namespace trekor
