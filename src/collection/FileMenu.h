// The data file as the menu and the link handle it: new, prepared, opened again, announced, closed, exported.
#pragma once

#include "collection/FormStatus.h"
#include "collection/RunNews.h"
#include "collection/RunStage.h"
#include "collection/SessionFile.h"
#include "datafiles/DataFileExport.h"
#include "datafiles/FileDialogs.h"
#include "options/OptionsDatabase.h"

namespace trekor {

// What does the work on files, and what an export reads again.
struct FileWork {
  SessionFile& file;
  DataFileExport& exporting;
  OptionsDatabase& options;
};

class FileMenu {
public:
  FileMenu(RunStage& stage, RunNews& news, FileDialogs& dialogs, const FileWork& work, FormStatus& status)
      : stage(stage), news(news), dialogs(dialogs), work(work), file(work.file), status(status) {}
  void mnuNew_Click();
  void mnuOpen_Click();   // only in idle
  void mnuExport_Click(); // only in idle without an open file
  // The files that the export form asks for, one by one; then the options are those of the table again.
  void Export(const FileExportDialog::Wish& wish);
  // Makes and opens the file that the state names; nothing without a name. On failure a file that is open stays open.
  // Hides the form on data files under which the file was made.
  void Prepare_File();
  // Only in idle: writes the comma file, closes, copies to the backup drive, sends "FILE CLOSE", and deletes the data
  // file when only the comma file is wanted.
  void mnuClose_Click();

private:
  bool Busy() const { return stage.Asking() || stage.Preparing() || stage.Closing() || stage.Ending(); }
  bool NameFile();
  void MakeNamed();
  bool ChooseFile();
  void Reopen();
  void CloseFile();

  RunStage& stage;
  RunNews& news;
  FileDialogs& dialogs;
  FileWork work;
  SessionFile& file;
  FormStatus& status;
};

} // namespace trekor
