// The data file of a job, from its name to its end: made, and at the close followed by its comma file and the copies on
// the backup drive.
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
  void NewName(); // a GUID for the next file, for the control program
  // On failure a file that is open stays open.
  bool Create() { return storing.CreateFile(); }
  // Opens an existing file for a new session. On failure none is open, and none is named: an order to open "the file"
  // would otherwise put an empty one in its place.
  bool Reopen();

  // Writes the comma file, closes, makes the copies. Gives the path of the data file when it may be deleted, as only
  // the comma file is wanted; else "".
  std::string Finish();
  // From here the file counts as closed; `unwanted`, the result of Finish, is deleted.
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
