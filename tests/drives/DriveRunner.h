// Plays a recorded drive through the whole program without a screen and writes down everything it leaves behind: the
// lines sent, what was said to the operator, the rows of the data file, the comma file. One text file tells the drive,
// one beside it what must come out.
#pragma once

#include "program/Program.h"
#include "support/FakePlatform.h"

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace trekor::tests {

// The drive's words, one a line; "#" begins a comment.
//   args LINE       on the first line: the program's command line
//   say TEXT        a heading in what comes out
//   > LINE          the control program sends a line: at the next pump, or at once from within "in" and "at"
//   key NAME [N]    a key, N times: F2, A, 7, Space, Num3, Num+, Esc, Enter, Del, or a code such as #65
//   keys NAME ...   keys, with a tick behind each
//   tick [N]        N ticks of 25 ms
//   pump            events run outside a tick, so that a tick "at" a pump runs
//   wait MS         the clock goes on and the ticks with it
//   answer TEXT     the next prompt is answered so; "answer <esc>" types something and then presses Esc, "answer" alone
//                   empties the box
//   in FORM LINE    LINE is done while the form is shown the next time, before any answer; its keys go to that form
//   at N LINE       LINE is done at the N-th pump from now, in the middle of what runs then
//   cell ROW COL    in a pause the operator moves to that cell of the grid (rows from 4)
//   step TEXT, depth TEXT    the operator types into the box and leaves it
//   name TEXT       typed into the new-file form's name
//   click NAME [N]  a menu, a button, a check, an option, an entry of a list, a button of the tool bar by its key
//   peer closes, peer fails    the link is lost
//   watchdog        the link's timer of 5 seconds fires
//   exit, close, start    the menu's exit; the close box; the next start of the program
//   fail PATH, heal            what is made or replaced there fails; nothing does
//   spoil           the layout of new files is no data file any more
//   damage SQL      of the open data file
//   want NAME 0|1   KeepMdb, WriteAscii of the options
//   pictures BYTES  of each picture that a new file stores; events run between blocks of 8 KB
//   simulate        positions are made up from now
//   rows            tells the grid's bars and rows: their stretch, the row's station, the filled cells
//   see             tells what else the form shows
//   stored [NAME]   tells the rows of the data file, the open one or that of C:\Roads
//   files           lists the folders of data and backup; with "brief" on the second line the end of the drive
//                   shows only this list
//   each A B ...    the lines to "end" once for each word, which stands in them for "$"
class DriveRunner {
public:
  // `shared` is the folder with what a release ships (templates, sample vocabulary, tones).
  explicit DriveRunner(const std::string& shared);
  ~DriveRunner();
  // All that came out, as one text.
  std::string Play(const std::string& drive);

private:
  using Words = std::vector<std::string>;
  void AddVerbs();
  void Start();
  void PlayLines(const Words& lines);
  void Do(const std::string& line);
  void Key(const std::string& name);
  void Tick(int n);
  void Type(TextBox& box, const std::string& text);
  void Click(const std::string& what);
  void Asked(Form& form);
  void TellLines();
  void TellRows();
  void TellForm();
  void TellFiles();
  void TellStored(const std::string& path);

  FakePlatform fakes;
  std::unique_ptr<Program> program;
  std::map<std::string, std::function<void(const std::string&)>> verbs;
  std::deque<std::string> answers;
  std::map<std::string, Words> meanwhile; // by form
  Form* front = nullptr;                  // the modal form that is being played in
  bool inside = false;                    // of a form or a pump
  bool brief = false;
  std::string told;
};

} // namespace trekor::tests
