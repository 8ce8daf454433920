// The data file as the menu and the link see it: new, prepared, announced, closed.
#pragma once

#include "collection/Feedback.h"
#include "collection/RunContext.h"
#include "collection/SetupChoice.h"

namespace trekor {

class FileMenu {
public:
  FileMenu(RunContext& context, SetupChoice& setupChoice, Feedback& sounds)
      : ctx(context), setups(setupChoice), feedback(sounds) {}
  void mnuNew_Click();
  // Builds and opens the file that the state names. Nothing without a name.
  void Prepare_File();
  // Only in idle: comma file, close, copies, "FILE CLOSE", and the data file goes when only the comma file is wanted.
  void mnuClose_Click();

private:
  void Announce_File();
  bool Write_CommaFile();
  void Close_File();

  RunContext& ctx;
  SetupChoice& setups;
  Feedback& feedback;
  bool asking = false; // the new-file form is up
};

} // namespace trekor
