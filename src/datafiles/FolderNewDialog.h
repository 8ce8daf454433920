// Asks for the name of a new folder, above the form for a new data file.
#pragma once

#include "datafiles/FileDialogRooms.h"
#include "forms/Form.h"

#include <string>

namespace trekor {

// What no name of a file or folder may have. A text box that asks for one refuses them as they are typed.
char32_t RefuseInNames(char32_t typed);
std::string WithoutRefused(std::string name); // what was pasted

struct FolderNewForm : Form {
  FolderNewForm() : Form("FolderNewDialog") {}
  Label LabelName{*this, "LabelName"};
  TextBox FolderName{*this, "FolderName"};
  CommandButton CmdOK{*this, "CmdOK"}, CmdCancel{*this, "CmdCancel"};
};

class FolderNewDialog {
public:
  explicit FolderNewDialog(const FileDialogRooms& rooms);
  // The name without surrounding blanks; "" when the user cancelled.
  std::string Ask();
  // Hides the form, when it is shown, as a cancel does.
  void GiveWay() { Close(""); }
  void Unload() { rooms.texts.UnloadForm(form); }
  FolderNewForm form;

private:
  bool Key(int keyCode, int shift);
  void Close(const std::string& name);

  FileDialogRooms rooms;
  std::string answer;
};

} // namespace trekor
