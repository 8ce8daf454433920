#include "collection/RunFixture.h"

#include "store/Recordset.h"
#include "support/Places.h"
#include "values/NumberText.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace trekor::tests {

namespace fs = std::filesystem;

namespace {

std::string SqlOf(const fs::path& file) {
  std::ifstream in(file);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

void Build(const std::string& native, const std::string& sql) {
  const bool made = Database::Create(native, "");
  const auto database = made ? Database::Open(native, OpenMode::Shared) : nullptr;
  if (!database || !database->Begin() || !database->Execute(sql) || !database->Commit())
    throw std::runtime_error("cannot build " + native + ": " + (database ? database->LastError() : ""));
}

// The released databases, built once for the whole test program.
const fs::path& Released() {
  static const struct Folder {
    Folder() {
      std::string pattern = (fs::temp_directory_path() / "trekor-release-XXXXXX").string();
      path = mkdtemp(pattern.data());
      const fs::path source = SourcePlace("/templates");
      for (const char* name : {"Observations", "DataFile"})
        Build((path / (std::string(name) + ".vdb")).string(), SqlOf(source / (std::string(name) + ".sql")));
      std::string words = SqlOf(source / "Trekor.sql");
      for (const auto& form : fs::directory_iterator(source / "forms"))
        words += SqlOf(form.path());
      Build((path / "Trekor.vdb").string(), words);
    }
    ~Folder() {
      std::error_code ignored;
      fs::remove_all(path, ignored);
    }
    fs::path path;
  } folder;
  return folder.path;
}

struct ItemRow {
  int item, type, mode, keying;
  double max;
  int key;
};

constexpr ItemRow Items[] = {
    {Crack, 1, 1, 1, 3, 'A'},   {Hole, 1, 0, 1, 1, 'B'},    {Patch, 1, 3, 1, 1, 'C'},  {Edge, 0, 2, 1, 1, 'D'},
    {Rut, 1, 2, 2, 9, 'E'},     {Depth, 2, 2, 1, 100, 'F'}, {Area, 1, 0, 1, 500, 'G'}, {Note, 4, 0, 1, 0, 'H'},
    {Surface, 4, 2, 1, 0, 'I'}, {Odd, 3, 1, 1, 5, 'J'},     {Sign, 0, -1, 1, 1, ' '},
};

} // namespace

RunFixture::RunFixture() {
  Install();
  socket.dispatch = [this](std::string_view line) { dispatcher.Dispatch(line); };
  run.Subjects().wayOut.unloadMainForm = [this] {
    ++unloads;
    run.Subjects().wayOut.StopAndClose();
    run.UnloadForms();
    socket.Unload();
  };
  for (const char* name : {"NumericPrompt", "TextPrompt"})
    fakes.shell.scripts[name] = [this](Form& prompt) { AnswerPrompt(prompt); };
}

void RunFixture::Install() {
  auto& f = state.folders;
  f.AppPath = "C:\\Trekor";
  f.programName = "Trekor";
  f.RootFolder = "C:\\Veldmark\\Trekor";
  f.MdbFolder = f.RootFolder + "\\MDB";
  f.VdbFolder = f.RootFolder + "\\VDB";
  f.GraphicsPath = f.AppPath + "\\Graphics\\";
  f.AudioEnglishPath = f.AudioLanguagePath = f.AppPath + "\\Audio\\English\\";
  f.AudioTonesPath = f.AppPath + "\\Audio\\Tones\\";
  f.AudioSystemPath = f.AppPath + "\\Audio\\SystemSounds\\";
  for (const auto& folder : {f.MdbFolder, f.VdbFolder, f.GraphicsPath, f.AudioEnglishPath, f.AudioTonesPath,
                             f.AudioSystemPath, std::string(Folder)})
    fakes.drives.MakeFolders(folder);
  for (const auto& file : fs::directory_iterator(Released()))
    fs::copy(file.path(), fs::path(fakes.drives.NativePath(f.AppPath)));
  for (int digit = 0; digit < 10; ++digit)
    fakes.drives.Write(f.AudioTonesPath + "D" + std::to_string(digit) + ".WAV", "tone");
  for (const char* sound : {"newsegment", "undefinedkey", "slowdown"})
    fakes.drives.Write(f.AudioSystemPath + sound + ".wav", "sound");
  state.command.HardwareName = "7707-104";
  state.options.AssistanceVoice = state.options.KeepMdb = state.options.WriteAscii = true;
  FillVocabulary();
}

// Setup 1 "Road" with all items; setup 2 "Short" with a single text item; setup 3 "Empty".
void RunFixture::FillVocabulary() {
  std::ostringstream sql;
  sql << "INSERT INTO Languages(LanguageID, Language) VALUES (1, 'Roads');"
         "INSERT INTO SetupNames(SetupID, SetupName) VALUES (1, 'Road'), (2, 'Short'), (3, 'Empty');"
         "INSERT INTO Setups(SetupID, ObsParID, GridPosition, KeyCode) VALUES (2, 8, 1, 65);";
  for (const auto& i : Items) {
    const int code = 100 + i.item;
    sql << "INSERT INTO ObsLinguistic(LanguageID, ObsCode, ObsNameDisp, ObsAbrvDisp) VALUES (1, " << code << ", 'Item "
        << i.item << "', 'I" << i.item << "');"
        << "INSERT INTO Observations(ObsParID, LanguageID, ObsCode, DataType, Min, Max, RegModeCode, KeyingCode) "
           "VALUES ("
        << i.item << ", 1, " << code << ", " << i.type << ", 0, " << i.max << ", " << i.mode << ", " << i.keying << ");"
        << "INSERT INTO Setups(SetupID, ObsParID, GridPosition, KeyCode) VALUES (1, " << i.item << ", " << i.item
        << ", " << i.key << ");";
  }
  const std::string working = fakes.drives.NativePath(state.folders.MdbFolder + "\\Observations.mdb");
  fs::copy(fakes.drives.NativePath("C:\\Trekor\\Observations.vdb"), working);
  const auto database = Database::Open(working, OpenMode::Shared);
  if (!database || !database->Execute(sql.str()))
    throw std::runtime_error("no vocabulary: " + (database ? database->LastError() : ""));
}

void RunFixture::Load() {
  ASSERT_TRUE(texts.Open());
  ASSERT_TRUE(vocabulary.LoadDatabase());
  ASSERT_TRUE(files.InitDataFiles());
  run.LoadForm();
  Tick();
  Sent();
  fakes.shell.acts.clear();
}

void RunFixture::Line(const std::string& line) {
  fakes.socket.Line(line);
}

void RunFixture::Link(const std::string& line) {
  Line(line);
  fakes.pump.ProcessEvents();
}

void RunFixture::Dmi(double km) {
  Link("DMI " + NumberToText(km));
}

void RunFixture::OpenFile(const std::string& name) {
  Link(std::string("FILE PATH ") + Folder);
  Link("FILE NAME " + name);
  Link("FILE OPEN");
  ASSERT_TRUE(state.run.DataFileOpen);
}

void RunFixture::StartFromLink(double km, const std::string& step) {
  Type(form.Texts7, step);
  Dmi(km);
  Link("CTRL PREPARE " + NumberToText(km));
  Link("CTRL START");
  ASSERT_EQ(State(), RunStates::Running);
  Sent();
}

void RunFixture::StartAt(double km, const std::string& step) {
  Type(form.Texts7, step);
  Answer(NumberToText(km));
  Key(F2);
  ASSERT_EQ(State(), RunStates::Running);
}

void RunFixture::Press(int key) {
  Key(key);
  Tick();
}

void RunFixture::Type(TextBox& box, const std::string& text) {
  fakes.shell.SetFocus(box);
  box.Type(text);
  fakes.shell.SetFocus(form.Grid);
}

void RunFixture::Tick(int times) {
  for (; times > 0; --times) {
    fakes.clock.Advance(24); // the tick's own pump adds the 25th millisecond
    form.IdleTimer.Fire();
  }
}

void RunFixture::AnswerPrompt(Form& prompt) {
  prompts.push_back(prompt.Caption());
  auto& box = dynamic_cast<PromptForm&>(prompt).txtBox;
  if (answers.empty())
    return;
  const auto answer = answers.front();
  answers.pop_front();
  box.Type(answer == "<esc>" ? "something else" : answer);
  prompt.OnKeyDown(answer == "<esc>" ? Esc : keys::Enter, 0);
}

Texts RunFixture::Roads() const {
  Texts roads;
  for (int row = 0; row < Rows(); ++row)
    roads.push_back(Cell(row, 0));
  return roads;
}

Texts RunFixture::Sounds() {
  Texts names;
  for (const auto& path : fakes.sound.TakePlayed())
    names.push_back(path.substr(path.rfind('\\') + 1));
  return names;
}

Texts RunFixture::Query(const std::string& sql) {
  std::unique_ptr<Database> closed;
  Database* database = files.database.get();
  if (database == nullptr) {
    closed = Database::Open(fakes.drives.NativePath(state.file.DataFilePath), OpenMode::ReadOnly);
    database = closed.get();
  }
  Texts rows;
  const auto found = database ? database->OpenQuery(sql) : nullptr;
  for (; found && !found->Eof(); found->MoveNext()) {
    std::string row;
    for (int i = 0; i < found->FieldCount(); ++i)
      row += (i > 0 ? " " : "") + found->Get(i).Text();
    rows.push_back(row);
  }
  return rows;
}

} // namespace trekor::tests
