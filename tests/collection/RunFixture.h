// A vehicle on the road: the real rooms over real databases in a temporary folder, the main form without a window, and
// verbs for what the operator, the vehicle and the control program do.
#pragma once

#include "collection/Measurements.h"
#include "collection/RunSubjects.h"
#include "program/Dispatcher.h"
#include "support/FakePlatform.h"
#include "values/KeyCodes.h"

#include <deque>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace trekor::tests {

using Texts = std::vector<std::string>;

// Columns of the grid in the setup "Road" of the fixture: an item of each sort. The key is the letter.
enum Item : int {
  Crack = 1, // A: Integer 0 to 3, mode 1
  Hole,      // B: Integer 0 to 1, mode 0
  Patch,     // C: Integer 0 to 1, mode 3
  Edge,      // D: Boolean, mode 2
  Rut,       // E: Integer 0 to 9, mode 2, two keys
  Depth,     // F: Float 0 to 100, mode 2
  Area,      // G: Integer 0 to 500, mode 0
  Note,      // H: Text, mode 0
  Surface,   // I: Text, mode 2
  Odd,       // J: the kind without a name, mode 1
  Sign,      // space bar: Boolean, mode -1
};

class RunFixture : public testing::Test {
protected:
  RunFixture();

  // Start-up, to the first tick.
  void Load();
  // The control program.
  void Line(const std::string& line); // arrives at the next pump
  void Link(const std::string& line); // and is pumped in at once
  void Dmi(double km);
  void OpenFile(const std::string& name = "ROAD09");
  void CloseFile() { Link("FILE CLOSE"); }
  void StartFromLink(double km, const std::string& step = "0.1");
  Texts Sent() { return fakes.socket.TakeLines(); }

  // The operator.
  void StartAt(double km, const std::string& step = "0.1"); // F2, and the station is typed into its prompt
  void Press(int key);                                      // and the tick that takes it
  void Key(int key, int shift = 0) { run.Subjects().formKeys.Form_KeyDown(key, shift); }
  void Answer(const std::string& text) { answers.push_back(text); } // of the next prompt; "<esc>" presses Esc
  void Type(TextBox& box, const std::string& text);                 // goes in, types, leaves

  // Time.
  void Tick(int times = 1);

  // What is seen.
  int Rows() const { return form.Grid.Rows() - form.Grid.FixedRows(); }
  std::string Cell(int row, int col) const { return form.Grid.Text(form.Grid.FixedRows() + row, col); }
  std::string Bar(int col) const { return form.Grid.CellPicture(RunGrid::BarRow, col); }
  Texts Roads() const; // column 0 of all rows, newest first
  Texts Sounds();      // file names played since the last call
  RunStates State() const { return state.run.RunState; }

  // What is stored: a row each, fields joined by a blank.
  Texts Query(const std::string& sql);
  Texts Stations() { return Query("SELECT Station, StationType FROM Stations ORDER BY StationID"); }
  bool Exists(const std::string& path) { return fakes.drives.FileExists(path); }

  static constexpr int F2 = keys::F2, F3 = keys::F3, F4 = keys::F4, F11 = keys::F11, Esc = keys::Esc,
                       Del = keys::Delete, Space = keys::Space;
  static constexpr const char* Folder = "C:\\Roads";

  FakePlatform fakes;
  ProgramState state;
  MeasurementsForm form;
  TextDatabase texts{state, fakes.platform};
  MessageCatalogue messages{state, fakes.platform, texts};
  OptionsDatabase options{state, fakes.platform, messages};
  SetupDatabase vocabulary{state, fakes.platform};
  TestSetup setup{state, vocabulary, form.imlObsPicsUCaseKeys};
  DataFiles files{state, fakes.platform};
  CommaFile comma{CommaSourcesOf(state), fakes.drives, files};
  SocketProp socket{state, fakes.platform, texts, form};
  Sections sections{state, fakes.platform, socket};
  FileDialogs dialogs{state, fakes.platform, texts, messages, sections};
  FileNewDialog2& fileNew = dialogs.fileNew;
  Options optionsDialog{state, fakes.platform, texts, options};
  cSendKeys SendKeysObject{fakes.platform};
  Measurements run{form, RunRooms{state, fakes.platform, texts, messages, options, sections, vocabulary, setup, files,
                                  comma, socket, dialogs, optionsDialog, SendKeysObject}};
  Dispatcher dispatcher{state, fakes.platform.drives, socket, sections, RunOrders(run.Subjects())};
  std::vector<std::string> prompts; // titles asked
  int unloads = 0;

private:
  void Install();
  void FillVocabulary();
  void AnswerPrompt(Form& prompt);
  std::deque<std::string> answers;
};

} // namespace trekor::tests
