// The process and the machine, as the toolkit knows them.
#pragma once

#include "platform/Process.h"

namespace trekor {

class QtProcess : public Process {
public:
  // `programFolder` is a path of drive letter and backslashes.
  QtProcess(int argc, char** argv, bool previousInstance, std::string programFolder);

  bool PreviousInstance() override { return previousInstance; }
  std::string CommandLine() override { return commandLine; }
  std::string ProgramName() override { return "Trekor"; }
  std::string ProgramFolder() override { return programFolder; }
  std::string ComputerName() override;
  float WindowsVersion() override { return 2010; }
  char DecimalChar() override;
  bool NewGuidBytes(unsigned char (&bytes)[16]) override;
  void End() override;
  // Whether End was called; before the main loop runs it has no loop to end.
  bool Ended() const { return ended; }

private:
  std::string commandLine, programFolder;
  bool previousInstance, ended = false;
};

} // namespace trekor
