// The process and the machine, as Qt knows them.
#pragma once

#include "platform/Process.h"

#include <QLockFile>

#include <memory>

namespace trekor {

class QtProcess : public Process {
public:
  // `lockFolder` is a native folder that all instances of one user's program share: two of them over different drive
  // trees may run side by side, over the same tree they may not. `programFolder` is a path of drive letter and
  // backslashes.
  QtProcess(int argc, char** argv, const std::string& lockFolder, std::string programFolder);

  bool PreviousInstance() override;
  std::string CommandLine() override { return commandLine; }
  std::string ProgramName() override { return "Trekor"; }
  std::string ProgramFolder() override { return programFolder; }
  std::string ComputerName() override;
  float WindowsVersion() override { return 2010; }
  char DecimalChar() override;
  bool NewGuidBytes(unsigned char (&bytes)[16]) override;
  void End() override;
  bool Ended() const { return ended; }

private:
  std::string commandLine, programFolder;
  QLockFile lock; // released by the system's own means when the process dies
  bool ended = false;
};

} // namespace trekor
