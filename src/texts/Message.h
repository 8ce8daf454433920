// The catalogue of numbered messages and the form that shows one.
#pragma once

#include "texts/Texts.h"

namespace trekor {

struct MessageForm : Form {
  MessageForm() : Form("Message") {}
  TextBox MessageText{*this, "MessageText", -1, Kind::RichTextBox};
  Label MessageNo{*this, "MessageNo"}; // in a corner of the text
};

class MessageCatalogue {
public:
  MessageCatalogue(ProgramState& state, Platform& platform, TextDatabase& texts);
  // Opens the table Messages of the file, a path of the program, with the index ID.
  void Open(const std::string& path);
  void Close();
  void LoadForm(); // makes and dresses the form
  void UnloadForm();
  // Shows the text of a number and returns when the user has closed it; silent when there is no such text.
  void ShowMessage(int number);
  MessageForm form;

private:
  ProgramState& state;
  Platform& platform;
  TextDatabase& texts;
  std::unique_ptr<Database> database;
  std::unique_ptr<Recordset> rsMessages;
};

} // namespace trekor
