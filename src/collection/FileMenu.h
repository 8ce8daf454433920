// The data file as the menu and the link see it: new, prepared, announced, closed.
#pragma once

#include "collection/FormStatus.h"
#include "collection/RunNews.h"
#include "collection/RunStage.h"
#include "collection/SessionFile.h"
#include "datafiles/FileNewDialog2.h"

namespace trekor {

class FileMenu {
public:
  FileMenu(RunStage& stage, RunNews& news, FileNewDialog2& fileNew, SessionFile& file, FormStatus& status)
      : stage(stage), news(news), fileNew(fileNew), file(file), status(status) {}
  void mnuNew_Click();
  // Builds and opens the file that the state names. Nothing without a name. When it can't be made, a file that is open
  // goes on. A file made under the new-file form takes the form away.
  void Prepare_File();
  // Only in idle: comma file, close, copies, "FILE CLOSE", and the data file goes when only the comma file is wanted.
  void mnuClose_Click();

private:
  bool NameFile();
  void CloseFile();

  RunStage& stage;
  RunNews& news;
  FileNewDialog2& fileNew;
  SessionFile& file;
  FormStatus& status;
};

} // namespace trekor
