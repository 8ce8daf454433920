#include "texts/MessageCatalogue.h"

#include "values/KeyCodes.h"
#include "values/Text.h"

#include <algorithm>

namespace trekor {

namespace {

constexpr double LargeText = 16.5; // points, as it is read at the wheel
constexpr int MarginOfText = 140;  // twips, width and height each, half of it on either side

bool Closes(int keyCode) {
  return keyCode == keys::Space || keyCode == keys::F4 || keyCode == keys::Esc || keyCode == keys::Enter;
}

} // namespace

MessageCatalogue::MessageCatalogue(ProgramState& programState, Platform& machine, TextDatabase& textDatabase)
    : state(programState), platform(machine), texts(textDatabase) {
  WireForm();
}

void MessageCatalogue::Open(std::unique_ptr<Database> opened) {
  Close();
  database = std::move(opened);
  if (database)
    rsMessages = database->OpenTable("Messages");
  if (rsMessages)
    rsMessages->SetIndex("ID");
}

void MessageCatalogue::Close() {
  rsMessages.reset();
  database.reset();
}

void MessageCatalogue::WireForm() {
  form.MessageText.ReadOnly = true;
  form.MessageText.SetFont({"", LargeText});
  const auto close = [this] { platform.shell.Hide(form); };
  const auto key = [this, close](int keyCode, int shift) {
    if (texts.FormKeyDown(form, keyCode, shift))
      return true;
    if (Closes(keyCode))
      close();
    return Closes(keyCode);
  };
  form.OnKeyDown = key;
  form.MessageText.OnKeyDown = key;
  form.MessageText.OnClick = form.MessageNo.OnClick = close;
  form.OnQueryUnload = [close] {
    close();
    return false;
  };
  form.OnResize = [this] { FillForm(); };
}

// The text fills the form, the number stands in its lower right corner.
void MessageCatalogue::FillForm() {
  const int width = std::max(form.Width - MarginOfText, 0), height = std::max(form.Height - MarginOfText, 0);
  form.MessageText.Move(MarginOfText / 2, MarginOfText / 2, width, height);
  Label& number = form.MessageNo;
  number.Move(width - number.Width, height - number.Height, number.Width, number.Height);
}

void MessageCatalogue::LoadForm() {
  if (form.Loaded)
    return;
  texts.LoadForm(form);
  form.SetCaption(state.folders.programName + " Message");
  FillForm(); // stored looks may have the text elsewhere
}

void MessageCatalogue::ShowMessage(int number) {
  if (!rsMessages || !rsMessages->Seek(number))
    return;
  const FieldValue words = rsMessages->Get(state.command.Language);
  const std::string text = (words.IsNull() ? rsMessages->Get("English") : words).Text();
  if (TrimView(text).empty()) // a blank translation silences a message
    return;
  const std::string id = rsMessages->Get("ID").Text();
  LoadForm();
  form.MessageText.SetText(text);
  form.MessageNo.SetCaption(id);
  // A message that comes while another is shown replaces it; the first call waits for both.
  if (!form.Shown)
    platform.shell.ShowModal(form);
}

} // namespace trekor
