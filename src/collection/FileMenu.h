// The data file as the menu and the link handle it: new, prepared, announced, closed.
#pragma once

#include "collection/FormStatus.h"
#include "collection/RunNews.h"
#include "collection/RunStage.h"
#include "collection/SessionFile.h"
#include "datafiles/FileDialogs.h"

namespace trekor {

class FileMenu {
public:
  FileMenu(RunStage& stage, RunNews& news, FileDialogs& dialogs, SessionFile& file, FormStatus& status)
      : stage(stage), news(news), dialogs(dialogs), file(file), status(status) {}
  void mnuNew_Click();
  // Makes and opens the file that the state names; nothing without a name. On failure a file that is open stays open.
  // Hides the form on data files under which the file was made.
  void Prepare_File();
  // Only in idle: writes the comma file, closes, copies to the backup drive, sends "FILE CLOSE", and deletes the data
  // file when only the comma file is wanted.
  void mnuClose_Click();

private:
  bool NameFile();
  void CloseFile();

  RunStage& stage;
  RunNews& news;
  FileDialogs& dialogs;
  SessionFile& file;
  FormStatus& status;
};

} // namespace trekor
