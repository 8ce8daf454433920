#include "datafiles/FolderNewDialog.h"

#include "values/KeyCodes.h"
#include "values/Text.h"

namespace trekor {

char32_t RefuseInNames(char32_t typed) {
  constexpr std::u32string_view refused = U"\\/:*?<>|\"";
  return refused.find(typed) == std::u32string_view::npos ? typed : U'\0';
}

std::string WithoutRefused(std::string name) {
  std::erase_if(name, [](char c) { return RefuseInNames(static_cast<unsigned char>(c)) == U'\0'; });
  return name;
}

FolderNewDialog::FolderNewDialog(const FileDialogRooms& dialogRooms) : rooms(dialogRooms) {
  form.OnKeyDown = [this](int keyCode, int shift) { return Key(keyCode, shift); };
  form.OnQueryUnload = [this] {
    Close("");
    return false; // hidden only, for the next folder
  };
  form.FolderName.OnKeyPress = RefuseInNames;
  form.CmdOK.OnClick = [this] { Close(Trim(WithoutRefused(form.FolderName.Text()))); };
  form.CmdCancel.OnClick = [this] { Close(""); };
}

std::string FolderNewDialog::Ask() {
  if (form.Shown)
    return "";
  rooms.texts.LoadForm(form);
  form.FolderName.SetText("");
  answer.clear();
  rooms.platform.shell.SetFocus(form.FolderName);
  rooms.platform.shell.ShowModal(form);
  return answer;
}

bool FolderNewDialog::Key(int keyCode, int shift) {
  if (rooms.texts.FormKeyDown(form, keyCode, shift))
    return true;
  const bool button = form.ActiveControl && form.ActiveControl->TypeOf() == Kind::CommandButton; // Enter is its own
  if (keyCode == keys::Enter && !button)
    form.CmdOK.Click();
  else if (keyCode == keys::Esc || keyCode == keys::F4)
    Close("");
  else
    return false;
  return true;
}

void FolderNewDialog::Close(const std::string& name) {
  if (!form.Shown)
    return;
  answer = name;
  rooms.platform.shell.Hide(form);
}

} // namespace trekor
