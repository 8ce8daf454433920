// The process and the machine around it.
#pragma once

#include <string>

namespace trekor {

class Process {
public:
  virtual ~Process() = default;
  // True when another instance of this program already runs.
  virtual bool PreviousInstance() = 0;
  // The arguments, joined by one blank.
  virtual std::string CommandLine() = 0;
  // The program's own name, without folder and extension: "Trekor".
  virtual std::string ProgramName() = 0;
  // The program's folder as a path of drive letter and backslashes.
  virtual std::string ProgramFolder() = 0;
  virtual std::string ComputerName() = 0;
  // The system's version number: 2006 and more on every system that is served.
  virtual float WindowsVersion() = 0;
  // The locale's decimal mark: the second character of 1.1 written with the pattern "0.0".
  virtual char DecimalChar() = 0;
  // 16 random bytes of a new GUID in the order of its parts; false when the system gives none.
  virtual bool NewGuidBytes(unsigned char (&bytes)[16]) = 0;
  // Asks the main loop to end; the caller returns at once and nothing else runs afterwards.
  virtual void End() = 0;
};

} // namespace trekor
