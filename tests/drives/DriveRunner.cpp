#include "drives/DriveRunner.h"

#include "collection/RunSubjects.h"
#include "support/ReleasedTree.h"
#include "texts/FormTable.h"
#include "values/KeyCodes.h"
#include "values/NumberText.h"
#include "values/Text.h"

#include <algorithm>
#include <iterator>
#include <sstream>
#include <tuple>
#include <utility>

namespace trekor::tests {

namespace {

int CodeOf(const std::string& key) {
  if (key[0] == '#')
    return static_cast<int>(Val(key.substr(1)));
  if (key.rfind("Num", 0) == 0 && key.size() == 4) {
    const std::string operators = "*+ -,/"; // from PadTimes on; no key is PadSeparator
    const auto at = operators.find(key[3]);
    return at == std::string::npos ? keys::Pad0 + key[3] - '0' : keys::PadTimes + static_cast<int>(at);
  }
  if (key[0] == 'F' && key.size() > 1)
    return keys::F1 - 1 + static_cast<int>(Val(key.substr(1)));
  if (key == "Space")
    return keys::Space;
  if (key == "Esc")
    return keys::Esc;
  if (key == "Enter")
    return keys::Enter;
  if (key == "Del")
    return keys::Delete;
  return static_cast<unsigned char>(key[0]);
}

std::vector<std::string> WordsOf(const std::string& text) {
  std::istringstream in(text);
  return {std::istream_iterator<std::string>(in), {}};
}

// A line of a loop with its word.
std::string Filled(std::string line, const std::string& word) {
  for (auto at = line.find('$'); at != std::string::npos; at = line.find('$', at + word.size()))
    line.replace(at, 1, word);
  return line;
}

std::string TextOf(const FieldValue& value) {
  return value.IsNull() ? "null" : value.Text();
}

// A line each; the registrations stand behind the station that they end at.
constexpr const char* Stored[] = {
    "SELECT 'session ' || SessionID || ' ' || GUID || ' ' || FacilityName || '/' || SectionName || '/' || Start || '/' "
    "|| End || ' from ' || StationMin || ' to ' || StationMax FROM Sessions",
    "SELECT '  ' || StationID || ': ' || Station || iif(StationType=0, '', ' point') || ifnull((SELECT ', from ' || "
    "min(FromID) || iif(min(FromID)=max(FromID), '', ' and others') || ': ' || group_concat(ObsCode || "
    "iif(RegData='', '', '=' || RegData), ' ') FROM Registrations WHERE ToID=StationID), '') FROM Stations ORDER BY "
    "StationID",
    "SELECT '  strayed: ' || FromID || ' to ' || ToID FROM Registrations WHERE FromID NOT IN (SELECT StationID FROM "
    "Stations) OR ToID NOT IN (SELECT StationID FROM Stations)"};

} // namespace

DriveRunner::DriveRunner(const std::string& shared) {
  InstallRelease(fakes.drives, shared);
  fakes.drives.currentFolder = "C:\\Roads";
  for (const char* name : {"NumericPrompt", "TextPrompt", "FileNewDialog2", "Message", "Options", "SavePrompt"})
    fakes.shell.scripts[name] = [this](Form& form) { Asked(form); };
  AddVerbs();
}

DriveRunner::~DriveRunner() = default;

void DriveRunner::Start() {
  if (program)
    program->UnloadMainForm();
  program = std::make_unique<Program>(fakes.platform);
  if (!program->Main())
    told += "the program did not start\n";
}

void DriveRunner::Asked(Form& form) {
  auto* box = dynamic_cast<TextBox*>(form.Find("txtBox"));
  told += box ? "prompt " + form.Caption() + "\n" : "form " + form.Name() + "\n";
  const auto before = std::pair(std::exchange(front, &form), std::exchange(inside, true));
  for (const auto& line : std::exchange(meanwhile[form.Name()], {}))
    Do(line);
  std::tie(front, inside) = before;
  if (!box || answers.empty() || !form.Shown)
    return;
  const std::string answer = answers.front();
  answers.pop_front();
  const bool escapes = answer == "<esc>";
  box->Type(escapes ? "given up" : answer);
  form.OnKeyDown(escapes ? keys::Esc : keys::Enter, 0);
}

void DriveRunner::TellLines() {
  for (const auto& line : fakes.socket.TakeLines())
    told += "< " + line + "\n";
  for (const auto& sound : fakes.sound.TakePlayed())
    told += "sound " + sound.substr(sound.rfind('\\') + 1) + "\n";
}

void DriveRunner::TellRows() {
  const auto& grid = program->ForTests().form.Grid;
  const RowBuffer& buffer = program->ForTests().measurements.Subjects().runGrid.rows;
  if (buffer.Bottom() + 1 != grid.Rows())
    told += "the buffer has other rows than the grid\n";
  std::string bars;
  for (int col = 0; col < grid.Cols(); ++col)
    if (const auto& bar = grid.CellPicture(RunGrid::BarRow, col); bar != "BAR:0" && bar != "BAR:11") // at rest
      bars += " " + grid.Text(RunGrid::NameRow, col) + " " + bar;
  if (!bars.empty())
    told += "bars" + bars + "\n";
  for (int row = grid.FixedRows(); row < grid.Rows(); ++row) {
    Station station(program->ForTests().state.units);
    station.SetFileValue(buffer.At(row) ? buffer.At(row)->station : NaN);
    told += "row " + grid.Text(row, 0) + " (" + station.FileText() + ")";
    for (int col = 0; col < grid.Cols(); ++col)
      if (grid.Text(row, col) != buffer.Cell(row, col))
        told += " but " + buffer.Cell(row, col) + " in the buffer";
    for (int col = 1; col < grid.Cols(); ++col)
      if (const auto& cell = grid.Text(row, col);
          !cell.empty() && !(grid.MergeRow(row) && cell == grid.Text(row, col - 1)))
        told += " " + grid.Text(RunGrid::NameRow, col) + "=" + cell;
    told += "\n";
  }
}

void DriveRunner::TellForm() {
  const auto& form = program->ForTests().form;
  const auto shown = [](const Control& control, const std::string& text) {
    return control.Enabled() ? text : "(" + text + ")"; // greyed
  };
  told += "state " + std::to_string(static_cast<int>(program->ForTests().state.run.RunState)) + ", " + form.Caption() +
          ", station " + shown(form.Texts6, form.Texts6.Text()) + " step " + shown(form.Texts7, form.Texts7.Text()) +
          " previous " + form.Texts8.Text() + " " + shown(form.UpDnPicture, form.UpDnPicture.Picture()) + ", " +
          shown(form.cboTestSetupNames, form.cboTestSetupNames.Text()) + ", " + shown(form.mnuFile, "file") +
          (form.tbControlBar.Buttons(0).Enabled ? " play" : "") + (fakes.keyboard.numLock ? " numlock" : "") +
          (form.Grid.Top == form.tbControlBar.Height ? " wide" : "") + (form.IdleTimer.Running() ? "" : " at rest") +
          (front == nullptr ? ""
           : front->Shown   ? " asking"
                            : " gone") +
          ", cells " + std::to_string(form.Grid.Col()) + " to " + std::to_string(form.Grid.ColSel()) + "\n";
}

void DriveRunner::TellStored(const std::string& path) {
  std::unique_ptr<Database> closed;
  Database* database = program->ForTests().dataFiles.database.get();
  if (!path.empty() || database == nullptr) {
    closed = Database::Open(fakes.drives.NativePath(path), OpenMode::ReadOnly);
    database = closed.get();
  }
  if (database == nullptr)
    told += "no file " + path + "\n";
  for (const char* sql : Stored)
    for (const auto rows = database ? database->OpenQuery(sql) : nullptr; rows && !rows->Eof(); rows->MoveNext())
      told += TextOf(rows->Get(0)) + "\n";
}

void DriveRunner::TellFiles() {
  for (const std::string folder : {"C:\\Roads", "D:\\Roads"}) {
    told += "== " + folder + ":";
    for (const auto& name : fakes.drives.Files(folder, "*.*"))
      told += " " + name;
    told += "\n";
  }
}

void DriveRunner::Tick(int n) {
  for (int i = 0; i < n; ++i) {
    fakes.clock.Advance(24); // the tick's own pump adds the 25th millisecond
    program->ForTests().form.IdleTimer.Fire();
    TellLines();
  }
}

void DriveRunner::Key(const std::string& name) {
  if (front)
    front->OnKeyDown(CodeOf(name), 0);
  else
    program->ForTests().measurements.Subjects().formKeys.Form_KeyDown(CodeOf(name), 0);
}

void DriveRunner::Type(TextBox& box, const std::string& text) {
  fakes.shell.SetFocus(box);
  box.Type(text);
  fakes.shell.SetFocus(program->ForTests().form.Grid);
}

void DriveRunner::Click(const std::string& what) {
  const auto words = WordsOf(what);
  const auto name = ParseControlName(words[0]).value_or(ControlName{});
  Control* control = (front ? front : &program->ForTests().form)->Find(name.Name, name.Index);
  if (auto* menu = dynamic_cast<Menu*>(control))
    menu->Click();
  else if (auto* button = dynamic_cast<CommandButton*>(control))
    button->Click();
  else if (auto* check = dynamic_cast<CheckBox*>(control))
    check->Click();
  else if (auto* option = dynamic_cast<OptionButton*>(control))
    option->Click();
  else if (auto* list = dynamic_cast<ComboBox*>(control))
    list->Select(static_cast<int>(Val(words.at(1))));
  else
    program->ForTests().form.tbControlBar.ClickButton(words[0]);
}

void DriveRunner::AddVerbs() {
  using Text = const std::string&;
  verbs[">"] = [this](Text line) { inside ? fakes.socket.DeliverNow(line + "\r\n") : fakes.socket.Line(line); };
  verbs["say"] = [this](Text text) { told += "-- " + text + "\n"; };
  verbs["key"] = [this](Text text) {
    const auto words = WordsOf(text);
    for (int times = words.size() > 1 ? static_cast<int>(Val(words[1])) : 1; times > 0; --times)
      Key(words[0]);
  };
  verbs["keys"] = [this](Text names) {
    for (const auto& name : WordsOf(names))
      Key(name), Tick(1);
  };
  verbs["tick"] = [this](Text n) { Tick(n.empty() ? 1 : static_cast<int>(Val(n))); };
  verbs["pump"] = [this](Text) { fakes.pump.ProcessEvents(); };
  verbs["wait"] = [this](Text ms) { Tick(static_cast<int>(Val(ms) / 25)); };
  verbs["answer"] = [this](Text text) { answers.push_back(text); };
  verbs["in"] = [this](Text text) {
    const auto name = text.find(' ');
    meanwhile[text.substr(0, name)].push_back(text.substr(name + 1));
  };
  verbs["at"] = [this](Text text) {
    fakes.pump.AtPump(static_cast<int>(Val(text)), [this, line = text.substr(text.find(' ') + 1)] {
      const bool before = std::exchange(inside, true);
      Do(line);
      inside = before;
    });
  };
  verbs["cell"] = [this](Text text) {
    const auto words = WordsOf(text);
    program->ForTests().form.Grid.SelectCell(static_cast<int>(Val(words[0])), static_cast<int>(Val(words[1])));
  };
  verbs["step"] = [this](Text text) { Type(program->ForTests().form.Texts7, text); };
  verbs["depth"] = [this](Text text) { Type(program->ForTests().form.txtGridDepth, text); };
  verbs["name"] = [this](Text text) { program->ForTests().dialogs.fileNew.form.Texts2.Type(text); };
  verbs["click"] = [this](Text what) { Click(what); };
  verbs["peer"] = [this](Text how) { how == "closes" ? fakes.socket.PeerClose() : fakes.socket.Fail(10054); };
  verbs["watchdog"] = [this](Text) { program->ForTests().socket.form.WDT.Fire(); };
  verbs["exit"] = [this](Text) { program->ForTests().measurements.Subjects().wayOut.mnuExit_Click(); };
  verbs["close"] = [this](Text) {
    if (program->ForTests().form.OnQueryUnload())
      program->ForTests().form.OnUnload();
  };
  verbs["start"] = [this](Text) { Start(); };
  verbs["fail"] = [this](Text path) { fakes.drives.failing.push_back(Upper(path)); };
  verbs["heal"] = [this](Text) { fakes.drives.failing.clear(); };
  verbs["spoil"] = [this](Text) {
    fakes.drives.CopyFile("C:\\Trekor\\Observations.vdb",
                          program->ForTests().state.folders.MdbFolder + "\\DATAfile.mdb");
  };
  verbs["files"] = [this](Text) { TellFiles(); };
  verbs["damage"] = [this](Text sql) {
    if (!program->ForTests().dataFiles.database->Execute(sql))
      told += "not done: " + sql + "\n";
  };
  verbs["want"] = [this](Text text) {
    (text.starts_with("KeepMdb") ? program->ForTests().state.options.KeepMdb
                                 : program->ForTests().state.options.WriteAscii) = text.back() == '1';
  };
  verbs["simulate"] = [this](Text) { program->ForTests().state.run.Simulator = true; };
  verbs["pictures"] = [this](Text bytes) { fakes.shell.pictureBytes = static_cast<std::size_t>(Val(bytes)); };
  verbs["rows"] = [this](Text) { TellRows(); };
  verbs["see"] = [this](Text) { TellForm(); };
  verbs["stored"] = [this](Text name) { TellStored(name.empty() ? "" : "C:\\Roads\\" + name + ".mdb"); };
  verbs["brief"] = [this](Text) { brief = true; };
}

void DriveRunner::Do(const std::string& line) {
  const auto end = std::min(line.find(' '), line.size());
  const auto verb = verbs.find(line.substr(0, end));
  const auto rest = line.find_first_not_of(' ', end);
  if (verb == verbs.end())
    told += "not understood: " + line + "\n";
  else
    verb->second(rest == std::string::npos ? "" : line.substr(rest));
  TellLines();
}

// With the lines between "each" and "end" written out.
void DriveRunner::PlayLines(const Words& lines) {
  for (auto line = lines.begin(); line != lines.end(); ++line) {
    if (!line->starts_with("each ")) {
      Do(*line);
      continue;
    }
    const auto end = std::find(line, lines.end(), "end");
    for (const auto& word : WordsOf(line->substr(5))) {
      told += "-- " + word + "\n";
      for (auto within = line + 1; within != end; ++within)
        Do(Filled(*within, word));
    }
    line = end;
  }
}

std::string DriveRunner::Play(const std::string& drive) {
  if (drive.starts_with("args "))
    fakes.process.commandLine = drive.substr(5, drive.find('\n') - 5);
  Start();
  std::istringstream in(drive);
  Words lines;
  for (std::string line; std::getline(in, line);)
    if (!line.empty() && line[0] != '#' && !line.starts_with("args "))
      lines.push_back(line);
  PlayLines(lines);
  program->UnloadMainForm();
  TellLines();
  for (const auto& box : fakes.shell.boxes)
    told += "box " + box + "\n";
  if (!brief)
    return told + FilesLeft(fakes.drives);
  TellFiles();
  return told;
}

} // namespace trekor::tests
