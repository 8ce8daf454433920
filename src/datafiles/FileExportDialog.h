// The form that chooses the data files of which comma files are made, and shows how far that is.
#pragma once

#include "datafiles/FileChoice.h"

#include <functional>
#include <string>
#include <vector>

namespace trekor {

struct FileExportForm : Form {
  FileExportForm() : Form("FileExportDialog") {
    files.FileSelect.MultiSelect = true;
    FocusHome = &CmdCancel;
  }
  FileListBoxes files{*this};
  OptionButton OptionJoin{*this, "OptionJoin"}, OptionKeep{*this, "OptionKeep"};
  CheckBox CheckTKR{*this, "CheckTKR"};
  CommandButton CmdOK{*this, "CmdOK"}, CmdCancel{*this, "CmdCancel"};
  SessionBoxes session{*this};
  Label ProgressLabel{*this, "ProgressLabel"};
};

class FileExportDialog {
public:
  FileExportDialog(const FileDialogRooms& rooms, YesNoPrompt& deletePrompt);
  // Shows the form modally; it closes when the files that the user has marked are exported, or he cancels. The name of
  // the data file in the state is left alone: the link may have named the next one.
  void ShowDialog();
  // Hides the form, as a cancel does, with a question that is shown above it. While files are exported it stays until
  // the present one is done.
  void GiveWay();
  void Unload() { rooms.texts.UnloadForm(form); }

  struct Wish {
    std::string folder; // without trailing backslash
    std::vector<std::string> names;
    bool join = true, CheckTKR = true; // as in ExportWish
  };
  // Exports the files. It asks Begins before each and calls ShowProgress while one is written.
  std::function<void(const Wish& wish)> OnExport;
  bool Begins(const std::string& name); // false: the user has had enough
  void ShowProgress(int percent);       // of the present file; lets events in. Nothing while none is exported.
  FileExportForm form;

private:
  void CmdOK_Click();
  Wish Marked() const;
  std::vector<Control*> LockAllButCancel();

  FileDialogRooms rooms;
  FileChoice choice;
  bool exporting = false, stopping = false;
  std::string present; // "ROAD09.mdb (2 of 7)"
  std::size_t done = 0, wanted = 0;
};

} // namespace trekor
