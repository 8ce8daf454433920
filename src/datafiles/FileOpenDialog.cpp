#include "datafiles/FileOpenDialog.h"

namespace trekor {

FileOpenDialog::FileOpenDialog(const FileDialogRooms& dialogRooms, YesNoPrompt& deletePrompt)
    : rooms(dialogRooms),
      choice(rooms, {form, form.files, form.session, form.CmdOK, form.CmdCancel, &form.DateLabel}, deletePrompt) {
  choice.OnAccept = [this] { CmdOK_Click(); };
}

bool FileOpenDialog::ShowDialog() {
  rooms.state.file.DataName.clear(); // however the form is closed, only CmdOK and the link set a name
  name.clear();
  choice.Show();
  return !name.empty();
}

void FileOpenDialog::CmdOK_Click() {
  name = choice.Lists().Selected();
  folder = choice.Lists().DataPath();
  GiveWay();
}

void FileOpenDialog::TakeOver() {
  rooms.state.file.DataName = name;
  rooms.state.file.DataPath = folder;
}

} // namespace trekor
