// This process and what it knows of the machine.
#pragma once

#include <string>

namespace trekor {

class Process {
public:
  virtual ~Process() = default;
  // True when another instance of this program was running when this one started.
  virtual bool PreviousInstance() = 0;
  // The arguments, joined by one blank.
  virtual std::string CommandLine() = 0;
  // The program's own name, without folder and extension: "Trekor".
  virtual std::string ProgramName() = 0;
  // The program's folder as a path of drive letter and backslashes.
  virtual std::string ProgramFolder() = 0;
  virtual std::string ComputerName() = 0;
  // The system's version as the folders ask for it: 2006 or more on every system that is served.
  virtual float WindowsVersion() = 0;
  // The decimal mark of the locale, "," or "."; any other mark counts as ".".
  virtual char DecimalChar() = 0;
  // The 16 bytes of a new random GUID in the order in which they are written; false when the system gives none.
  virtual bool NewGuidBytes(unsigned char (&bytes)[16]) = 0;
  // Asks every event loop, those of modal forms included, to end, and returns at once; the caller's own work still runs
  // to its end.
  virtual void End() = 0;
};

} // namespace trekor
