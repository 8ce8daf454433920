// The data file of the job from its making to its end: named, made, and at the close followed by its comma file and the
// copies on the backup drive, after which it may go.
#pragma once

#include "collection/Storing.h"
#include "datafiles/CommaFile.h"
#include "platform/Platform.h"
#include "setup/TestSetup.h"
#include "state/ProgramState.h"

#include <string>
#include <vector>

namespace trekor {

class SessionFile {
public:
  SessionFile(ProgramState& state, Platform& platform, Storing& storing, CommaFile& comma, const TestSetup& setup)
      : state(state), platform(platform), storing(storing), comma(comma), setup(setup) {}

  bool Named() const { return !state.file.DataName.empty(); }
  void NewName(); // of the file that comes, for the control program
  // When it can't be made, a file that is open goes on.
  bool Create() { return storing.CreateFile(); }

  // Comma file, close, copies. Answers the path of a data file that may go, as only the comma file is wanted, and
  // nothing else.
  std::string Finish();
  // The file counts as closed from here; `unwanted` is the answer of Finish.
  void LetGo(const std::string& unwanted);
  void StampClose() { state.file.LastCloseTime = platform.clock.Now(); }

private:
  void WriteSessionComma();
  std::vector<std::string> BackUpFile();
  bool StandsElsewhere(const std::vector<std::string>& copied);

  ProgramState& state;
  Platform& platform;
  Storing& storing;
  CommaFile& comma;
  const TestSetup& setup;
};

} // namespace trekor
