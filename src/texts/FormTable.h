// The table of one form in the texts database: one row a control, named as the control ("Texts(7)"), and the row "Me"
// for the form itself. Column names are fixed by databases in the field:
//
//   Name, Left, Top, Width, Height, Value, Visible, Tag, CapEnglish, TipEnglish, HelpEnglish
//   and Cap, Tip, Help with another language's name
#pragma once

#include "forms/Form.h"
#include "state/ProgramState.h"
#include "store/Recordset.h"

#include <optional>
#include <string>

namespace trekor {

// A field that is null, or that the table lacks, is empty here.
struct FormRow {
  std::string Name;
  std::optional<int> Left, Top, Width, Height; // twips
  std::optional<std::string> Value, Tag;
  std::optional<bool> Visible;
  std::string Caption, Tip;               // in the language in use, "" when the table has no such column
  std::string CaptionEnglish, TipEnglish; // what a blank one is replaced by
};

// Places of the columns, looked up once a table. -1: the table lacks it.
struct FormColumns {
  FormColumns(const Recordset& table, const CommandLineFlags& command);
  int Name, Left, Top, Width, Height, Value, Visible, Tag, Caption, Tip, CaptionEnglish, TipEnglish;
};

FormRow ReadFormRow(const Recordset& table, const FormColumns& columns);

// A control's name as a row gives it: "Texts(7)" is element 7 of Texts, a plain name has index -1. Nothing when a
// bracket holds no number.
struct ControlName {
  std::string Name;
  int Index = -1;
};
std::optional<ControlName> ParseControlName(const std::string& rowName);

// Flag letters of the column Tag.
constexpr char HeightWithoutCaption = 'C'; // on the row "Me"
constexpr char DisabledForUsers = 'D';     // for user levels below Administrator
constexpr char HiddenForUsers = 'H';
bool HasFlag(const std::string& tag, char letter);
void AddFlag(std::string& tag, char letter);
// Puts a blank in the letter's place.
void BlankFlag(std::string& tag, char letter);

// The height of a form's inside, as the model has it, from the stored one. A height stored without the flag includes a
// title bar, as it was then: six pixels lower than the 25 of today.
constexpr int CaptionBarHeight = 25 * 15; // twips
constexpr int OldCaptionGrowth = 6 * 15;
int InsideHeight(int stored, bool withoutCaption);

} // namespace trekor
