// Plays a recorded drive through the whole program without a screen and writes down everything it leaves behind: the
// lines sent, what was said to the operator, the rows of the data file, the comma file. One text file tells the drive,
// one beside it what must come out.
#pragma once

#include "program/Program.h"
#include "support/FakePlatform.h"

#include <deque>
#include <memory>
#include <string>

namespace trekor::tests {

// The drive's words, one a line; "#" begins a comment.
//   args LINE       on the first line: the program's command line
//   > LINE          the control program sends a line
//   key NAME        a key: F2, A, 7, Space, Num3, Num+, Esc, Del, or a code such as #65
//   tick [N]        N ticks of 25 ms
//   wait MS         the clock goes on and the ticks with it
//   answer TEXT     the next prompt is answered so; "answer <esc>" types something and then presses Esc, "answer" alone
//                   empties the box
//   cell ROW COL    in a pause the operator moves to that cell of the grid (rows from 4)
//   station TEXT, step TEXT    the operator types into the box and leaves it
//   peer closes, peer fails    the link is lost
//   watchdog        the link's timer of 5 seconds fires
//   exit            the close box
class DriveRunner {
public:
  // `shared` is the folder with what a release ships (templates, sample vocabulary, tones).
  explicit DriveRunner(const std::string& shared);
  ~DriveRunner();
  // All that came out, as one text.
  std::string Play(const std::string& drive);

private:
  void Do(const std::string& line);
  void Tick(int n);
  void Answer(Form& form);
  void TellLines();

  FakePlatform fakes;
  std::unique_ptr<Program> program;
  std::deque<std::string> answers;
  std::string told;
};

} // namespace trekor::tests
