#include "datafiles/FileExportDialog.h"

namespace trekor {

FileExportDialog::FileExportDialog(const FileDialogRooms& dialogRooms, YesNoPrompt& deletePrompt)
    : rooms(dialogRooms),
      choice(rooms, {form, form.files, form.session, form.CmdOK, form.CmdCancel, nullptr}, deletePrompt) {
  choice.OnAccept = [this] { CmdOK_Click(); };
  choice.OnCancel = [this] { GiveWay(); };
}

void FileExportDialog::ShowDialog() {
  if (!form.OptionKeep.Value())
    form.OptionJoin.SetValue(true); // a stored look may have neither
  form.ProgressLabel.SetCaption("");
  choice.Show();
}

void FileExportDialog::GiveWay() {
  stopping = true;
  if (!exporting)
    choice.GiveWay();
}

FileExportDialog::Wish FileExportDialog::Marked() const {
  Wish wish{choice.Lists().DataPath(), {}, form.OptionJoin.Value(), form.CheckTKR.Value() == 1};
  const ListBox& list = form.files.FileSelect;
  for (int i = 0; i < list.ListCount(); ++i)
    if (list.Selected(i))
      wish.names.push_back(list.List(i));
  return wish;
}

void FileExportDialog::CmdOK_Click() {
  if (exporting)
    return;
  const Wish wish = Marked();
  wanted = wish.names.size();
  done = 0;
  stopping = false;
  choice.Working = exporting = true;
  const std::vector<Control*> locked = LockAllButCancel();
  if (OnExport)
    OnExport(wish);
  for (Control* control : locked)
    control->SetEnabled(true);
  choice.Working = exporting = false;
  GiveWay();
}

// The list must not change, nor a file go, while it is walked. Gives those that were enabled.
std::vector<Control*> FileExportDialog::LockAllButCancel() {
  std::vector<Control*> locked;
  for (Control* control : form.Controls())
    if (control->Enabled() && control != &form.CmdCancel && control->TypeOf() != Kind::Label)
      locked.push_back(control);
  for (Control* control : locked)
    control->SetEnabled(false);
  return locked;
}

bool FileExportDialog::Begins(const std::string& name) {
  if (stopping)
    return false;
  present = name + " (" + std::to_string(++done) + " of " + std::to_string(wanted) + ")";
  ShowProgress(0);
  return !stopping;
}

void FileExportDialog::ShowProgress(int percent) {
  if (!exporting)
    return;
  form.ProgressLabel.SetCaption("Writing " + present + ": " + std::to_string(percent) + "%");
  rooms.platform.pump.ProcessEvents();
}

} // namespace trekor
