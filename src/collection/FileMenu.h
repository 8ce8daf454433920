// The data file as the menu and the link see it: new, prepared, announced, closed.
#pragma once

#include "collection/Feedback.h"
#include "collection/RunContext.h"
#include "collection/SetupChoice.h"

#include <string>
#include <vector>

namespace trekor {

class FileMenu {
public:
  FileMenu(RunContext& context, SetupChoice& setupChoice, Feedback& feedback)
      : ctx(context), setupChoice(setupChoice), feedback(feedback) {}
  void mnuNew_Click();
  // Builds and opens the file that the state names. Nothing without a name. When it can't be made, a file that is open
  // goes on. A file made under the new-file form takes the form away.
  void Prepare_File();
  // Only in idle: comma file, close, copies, "FILE CLOSE", and the data file goes when only the comma file is wanted.
  void mnuClose_Click();

private:
  void Announce_File();
  bool NameFile();
  void WriteSessionComma();
  std::vector<std::string> BackUpFile();
  bool StandsElsewhere(const std::vector<std::string>& copied);
  void CloseFile();

  RunContext& ctx;
  SetupChoice& setupChoice;
  Feedback& feedback;
};

} // namespace trekor
