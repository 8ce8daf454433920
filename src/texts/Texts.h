// The texts database: the words that the logic itself needs, and the look of every form: one table a form, one row a
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
  // Updates and opens MdbFolder\<program>.mdb and its table Text. False after "Cannot open " was shown: the program
  // ends.
  bool Open();
  void Close();

  // A word of the table in the current language, else in English; "" for a missing or empty key.
  std::string GetText(const std::string& key);

  // Dresses a form at its load and keeps its look at its unload. What fails is skipped; a table that can't be read
  // whole dresses nothing, and the form, which then stands as it was built, is not kept either.
  void LoadFormProperties(Form& form);
  void SaveFormProperties(Form& form);
  // The shared keys of every form (F1 help and the maintenance chords); true when it took the key.
  bool FormKeyDown(Form& form, int keyCode, int shift);

private:
  ProgramState& state;
  Platform& platform;
  std::unique_ptr<Database> database;
  std::unique_ptr<Recordset> TextTable; // after the database, so that it goes first
  std::set<const Form*> undressed;      // those whose look could not be read at their last load
};

} // namespace trekor
