// A vehicle's machine with the data-file template in its place, and the verbs of a job: offer observations, create the
// file, stand at stations, register values, write the comma file.
#pragma once

#include "datafiles/CommaFile.h"
#include "datafiles/DataFiles.h"
#include "setup/TestSetup.h"
#include "support/Databases.h"

#include <gtest/gtest.h>

#include <vector>

namespace trekor::tests {

struct Job {
  Job();
  FakePlatform machine;
  ProgramState state;
  Form iconForm{"Icons"};
  ImageList icons{iconForm, "icons"};
  SetupDatabase vocabulary{state, machine.platform};
  TestSetup setup{state, vocabulary, icons};
  DataFiles files{state, machine.platform};
  CommaFile comma{CommaSourcesOf(state), machine.drives, files};

  ClassObservation& Offer(int code, const std::string& name, const std::string& abbreviation, int mode, double max = 3);
  bool Create(const std::string& name);
  // Offers the observation 5 and creates the file.
  void Begin(const std::string& name = "JOB");
  std::int32_t Step(const std::string& station) { return Stand(station, RowKind::Step); }
  std::int32_t Event(const std::string& station) { return Stand(station, RowKind::Event); }
  void Value(std::int32_t from, std::int32_t to, int code, const std::string& text, int parCode = 0);
  // The fix of the stations that follow.
  void Fix(double latitude, double longitude, double height = 0, int status = 4, int satellites = 9);

  // Writes the comma file of the present session (or another, 0 all) and gives its text, CR LF as LF.
  std::string Comma(std::int32_t sessionID);
  std::string Comma() { return Comma(state.file.SessionID); }
  // What stands behind the head.
  static std::string Records(const std::string& commaFile);
  // Rows out of the open file, a line each, fields joined by "|".
  std::string Ask(const std::string& query);
  std::string DataFile(const std::string& name) { return "D:\\Data\\" + name + ".mdb"; }

private:
  std::int32_t Stand(const std::string& station, RowKind kind);
  NewStation next;
};

// The first line of a text that holds something.
std::string LineWith(const std::string& text, const std::string& what);
// An expected file of this folder, with the program's version filled in.
std::string Expected(const std::string& name);
// Makes a database with the layout of a released template at a path of the program.
void MakeTemplate(FakeDrives& drives, const std::string& name, const std::string& path);

} // namespace trekor::tests
