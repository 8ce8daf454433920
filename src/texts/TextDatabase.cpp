#include "texts/TextDatabase.h"

#include "dbupdate/UpdateDatabase.h"
#include "values/Text.h"

namespace trekor {

TextDatabase::TextDatabase(ProgramState& programState, Platform& machine) : state(programState), platform(machine) {}

TextDatabase::~TextDatabase() {
  Close();
}

bool TextDatabase::Open() {
  const FolderPaths& folders = state.folders;
  UpdateResult update = UpdateDatabase(folders, platform, folders.programName, folders.MdbFolder, "");
  state.versions.Program = update.version;
  if (update.programEnds)
    return false;
  database = std::move(update.database);
  if (database)
    TextTable = database->OpenTable("Text");
  if (TextTable && TextTable->SetIndex("TextID"))
    return true;
  Close();
  platform.shell.MsgBox("Cannot open " + update.path, folders.programName, BoxIcon::Stop);
  return false;
}

void TextDatabase::Close() {
  TextTable.reset();
  database.reset();
}

// A form that somebody has shown before its load counts as loaded, too, but has no look yet: it would be stored
// without.
void TextDatabase::LoadForm(Form& form) {
  if (!brought.insert(&form).second && form.Loaded)
    return;
  LoadFormProperties(form);
  form.Loaded = true;
  platform.shell.Load(form);
}

void TextDatabase::UnloadForm(Form& form) {
  if (!form.Loaded)
    return;
  SaveFormProperties(form);
  platform.shell.Unload(form);
  form.Loaded = false;
  brought.erase(&form);
}

std::string TextDatabase::GetText(const std::string& key) {
  if (key.empty() || !TextTable || !TextTable->Seek(Upper(key)))
    return "";
  const FieldValue word = TextTable->Get(state.command.Language);
  return word.IsNull() ? TextTable->Get("English").Text() : word.Text();
}

} // namespace trekor
