// The texts database: the words that the logic itself shows, and the look of each form, one table a form and one row a
// control.
#pragma once

#include "forms/Form.h"
#include "platform/Platform.h"
#include "state/ProgramState.h"
#include "store/Database.h"
#include "store/Recordset.h"

#include <memory>
#include <set>
#include <string>

namespace trekor {

class TextDatabase {
public:
  TextDatabase(ProgramState& state, Platform& platform);
  ~TextDatabase();
  // Updates and opens MdbFolder\<program>.mdb and its table Text. False after a message was shown: the program ends.
  bool Open();
  void Close();

  // A word of the table in the current language, else in English; "" for a missing or empty key.
  std::string GetText(const std::string& key);

  // Loads a form with its look, and unloads it and stores the look. Nothing when it is loaded, or unloaded, already.
  void LoadForm(Form& form);
  void UnloadForm(Form& form);

  // The look alone, set at the load and stored at the unload. Failures in a row are skipped. A table that can't
  // be read whole sets nothing, and the form, which then looks as it was built, is not stored either.
  void LoadFormProperties(Form& form);
  void SaveFormProperties(Form& form);
  // The keys that every form shares, Ctrl+Shift and D, E, H or S: users of level 1 and more set the flags of the active
  // control. True when the key was taken.
  bool FormKeyDown(Form& form, int keyCode, int shift);

private:
  ProgramState& state;
  Platform& platform;
  std::unique_ptr<Database> database;
  std::unique_ptr<Recordset> TextTable; // after the database, so that it is destroyed first
  std::set<const Form*> undressed;      // forms whose look could not be read at their last load
  std::set<const Form*> brought;        // forms that LoadForm has brought up, and UnloadForm not yet away
};

} // namespace trekor
