// The common work of the forms that choose among closed data files: the lists, a look at the file under the cursor,
// deleting one, the keys.
#pragma once

#include "datafiles/FileDialogRooms.h"
#include "datafiles/FileLists.h"
#include "datafiles/PreviewPane.h"
#include "texts/YesNoPrompt.h"

#include <functional>
#include <string>

namespace trekor {

// The form's own controls.
struct FileChoiceControls {
  Form& form;
  FileListBoxes& files;
  SessionBoxes& session;
  CommandButton &CmdOK, &CmdCancel;
  Label* date;
};

class FileChoice {
public:
  FileChoice(const FileDialogRooms& rooms, const FileChoiceControls& controls, YesNoPrompt& deletePrompt);
  // Shows the form modally until it is hidden: by GiveWay, which the cancel is, or by what OnAccept does.
  void Show();
  void GiveWay();
  const FileLists& Lists() const { return lists; }
  // OnAccept: Enter, CmdOK, and a double click on a file whose preview passed. OnCancel: Esc, F4, CmdCancel, the close
  // box; hides the form.
  std::function<void()> OnAccept, OnCancel;
  // What was accepted is being worked on: Enter does nothing, as the one that accepted may be held down and would press
  // the button that ends the work.
  bool Working = false;

private:
  bool Key(int keyCode, int shift);
  bool FolderEnter(int keyCode);
  void Preview();
  void AcceptPreviewed();
  void Delete();
  void Accept();

  FileDialogRooms rooms;
  FileChoiceControls controls;
  YesNoPrompt& deletePrompt;
  FileLists lists;
  PreviewPane pane;
  bool PreviewPassed = false;
};

} // namespace trekor
