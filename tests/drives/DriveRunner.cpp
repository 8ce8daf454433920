#include "drives/DriveRunner.h"

#include "support/ReleasedTree.h"
#include "values/NumberText.h"
#include "values/Text.h"

#include <sstream>

namespace trekor::tests {

namespace {

int CodeOf(const std::string& key) {
  if (key[0] == '#')
    return static_cast<int>(Val(key.substr(1)));
  if (key.rfind("Num", 0) == 0 && key.size() == 4) {
    const std::string operators = "*+ -,/"; // 106 to 111, 108 is no key
    const auto at = operators.find(key[3]);
    return at == std::string::npos ? key[3] - '0' + 96 : static_cast<int>(at) + 106;
  }
  if (key[0] == 'F' && key.size() > 1)
    return 111 + static_cast<int>(Val(key.substr(1)));
  if (key == "Space")
    return 32;
  if (key == "Esc")
    return 27;
  if (key == "Del")
    return 46;
  return static_cast<unsigned char>(key[0]);
}

} // namespace

DriveRunner::DriveRunner(const std::string& shared) {
  InstallRelease(fakes.drives, shared);
  for (const char* name : {"NumericPrompt", "TextPrompt"})
    fakes.shell.scripts[name] = [this](Form& form) { Answer(form); };
  program = std::make_unique<Program>(fakes.platform);
}

DriveRunner::~DriveRunner() = default;

void DriveRunner::Answer(Form& form) {
  told += "prompt " + form.Caption() + "\n";
  auto* box = dynamic_cast<TextBox*>(form.Find("txtBox"));
  if (!box || answers.empty())
    return;
  const std::string answer = answers.front();
  answers.pop_front();
  const bool escapes = answer == "<esc>";
  box->Type(escapes ? "given up" : answer);
  form.OnKeyDown(escapes ? 27 : 13, 0);
}

void DriveRunner::TellLines() {
  for (const auto& line : fakes.socket.TakeLines())
    told += "< " + line + "\n";
  for (const auto& sound : fakes.sound.TakePlayed())
    told += "sound " + sound.substr(sound.rfind('\\') + 1) + "\n";
}

void DriveRunner::Tick(int n) {
  for (int i = 0; i < n; ++i) {
    fakes.clock.Advance(24); // the tick's own pump adds the 25th millisecond
    program->form.IdleTimer.Fire();
    TellLines();
  }
}

void DriveRunner::Do(const std::string& line) {
  std::istringstream words(line);
  std::string verb, rest;
  words >> verb;
  std::getline(words >> std::ws, rest);
  auto& form = program->form;
  if (verb == ">")
    fakes.socket.Line(rest);
  else if (verb == "key")
    program->measurements.Form_KeyDown(CodeOf(rest), 0);
  else if (verb == "tick")
    Tick(rest.empty() ? 1 : static_cast<int>(Val(rest)));
  else if (verb == "wait")
    Tick(static_cast<int>(Val(rest) / 25));
  else if (verb == "answer")
    answers.push_back(rest);
  else if (verb == "cell") {
    int row = 0, col = 0;
    std::istringstream(rest) >> row >> col;
    form.Grid.SelectCell(row, col);
  } else if (verb == "station" || verb == "step") {
    TextBox& box = verb == "step" ? form.Texts7 : form.Texts6;
    fakes.shell.SetFocus(box);
    box.Type(rest);
    fakes.shell.SetFocus(form.Grid);
  } else if (line == "peer closes")
    fakes.socket.PeerClose();
  else if (line == "peer fails")
    fakes.socket.Fail(10054);
  else if (verb == "watchdog")
    program->socket.form.WDT.Fire();
  else if (verb == "exit")
    program->measurements.mnuExit_Click();
  else
    told += "not understood: " + line + "\n";
}

std::string DriveRunner::Play(const std::string& drive) {
  if (drive.starts_with("args "))
    fakes.process.commandLine = drive.substr(5, drive.find('\n') - 5);
  if (!program->Main())
    return "the program did not start\n";
  std::istringstream lines(drive);
  for (std::string line; std::getline(lines, line);) {
    if (line.empty() || line[0] == '#' || line.starts_with("args "))
      continue;
    Do(line);
    TellLines();
  }
  program->Unload_MainForm();
  TellLines();
  for (const auto& box : fakes.shell.boxes)
    told += "box " + box + "\n";
  return told + FilesLeft(fakes.drives);
}

} // namespace trekor::tests
