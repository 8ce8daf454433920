// The catalogue of numbered messages and the form that shows one. What can't be read is not shown.
#pragma once

#include "texts/TextDatabase.h"

namespace trekor {

struct MessageForm : Form {
  MessageForm() : Form("Message") {}
  TextBox MessageText{*this, "MessageText", -1, Kind::RichTextBox};
  Label MessageNo{*this, "MessageNo"}; // in a corner of the text
};

class MessageCatalogue {
public:
  MessageCatalogue(ProgramState& state, Platform& platform, TextDatabase& texts);
  // Opens the table Messages of a database. Without a database there are no messages.
  void Open(std::unique_ptr<Database> database);
  void Close();
  void LoadForm(); // unless it is loaded
  void UnloadForm() { texts.UnloadForm(form); }
  // Shows the text of a number and returns when the user has closed it. Nothing when there is no such text. A number
  // that comes while another is shown replaces its text and returns at once.
  void ShowMessage(int number);
  MessageForm form;

private:
  void WireForm();
  void FillForm();
  ProgramState& state;
  Platform& platform;
  TextDatabase& texts;
  std::unique_ptr<Database> database;
  std::unique_ptr<Recordset> rsMessages;
};

} // namespace trekor
