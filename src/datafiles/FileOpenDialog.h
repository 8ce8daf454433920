// The form that chooses a data file to go on collecting in.
#pragma once

#include "datafiles/FileChoice.h"

namespace trekor {

struct FileOpenForm : Form {
  FileOpenForm() : Form("FileOpenDialog") {}
  FileListBoxes files{*this};
  CommandButton CmdOK{*this, "CmdOK"}, CmdCancel{*this, "CmdCancel"};
  Label LabelDate{*this, "LabelDate"}, DateLabel{*this, "DateLabel"};
  SessionBoxes session{*this};
};

class FileOpenDialog {
public:
  FileOpenDialog(const FileDialogRooms& rooms, YesNoPrompt& deletePrompt);
  // Shows the form modally. False when the user cancelled: state.file.DataName is then empty, unless the link has named
  // a file meanwhile. True when he chose one; TakeOver then stores it in the state. What he chose need not be a data
  // file, nor still be there.
  bool ShowDialog();
  void TakeOver();
  // Hides the form, as a cancel does, with a question that is shown above it.
  void GiveWay() { choice.GiveWay(); }
  void Unload() { rooms.texts.UnloadForm(form); }
  FileOpenForm form;

private:
  void CmdOK_Click();

  FileDialogRooms rooms;
  FileChoice choice;
  std::string name, folder; // accepted; an empty name for a cancel
};

} // namespace trekor
