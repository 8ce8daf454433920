// The check behind every numeric entry field: text to number, limits, back to text.
#pragma once

#include <cstdint>
#include <string>
#include <variant>

namespace trekor {

// The variable behind a field; borrowed for the call. With std::monostate, a variable of any other kind, the check does
// nothing and is false.
using EntryVariable = std::variant<std::monostate, std::int16_t*, std::int32_t*, float*, double*>;

struct EntryResult {
  bool ok = false;         // nothing was out of range
  bool guardStays = false; // after an emptied field the guard is left false
  bool rewrite = false;    // the field takes `text`
  std::string text;
};
// The check without the field: reads `text` and writes the variable. A number beyond a limit becomes that limit and ok
// is false; a text that holds no number counts as 0. An empty text stores the "no value" of the variable's width when
// `allowEmpty`. A number that the variable cannot hold leaves it as it was.
EntryResult CheckEntryText(EntryVariable variable, const std::string& text, double lowest, double highest,
                           bool allowEmpty);

// `Field` has Text, SetText and CaretToStart. `guard` is false while the field is rewritten, so that its change handler
// skips that; it is put back afterwards, except after an emptied field. True when nothing was out of range.
template <class Field>
bool CheckEntry(EntryVariable variable, Field& field, double lowest, double highest, bool& guard, bool allowEmpty,
                bool select) {
  const bool saved = guard;
  guard = false;
  const EntryResult result = CheckEntryText(variable, field.Text(), lowest, highest, allowEmpty);
  if (result.rewrite)
    field.SetText(result.text);
  if (!result.guardStays) {
    if (select && result.rewrite)
      field.CaretToStart();
    guard = saved;
  }
  return result.ok;
}

// Kept for the forms of the editors, as TestEntry below. When the operator leaves the field; does nothing while `guard`
// is false. With a wrong entry `returnFocus` sends him back to it, which also lets events run. The guard is false
// meanwhile: the field that loses the focus again must not be checked again.
template <class Field, class ReturnFocus>
void ValidateEntry(EntryVariable variable, Field& field, double lowest, double highest, bool& guard, bool allowEmpty,
                   ReturnFocus returnFocus) {
  if (!guard || CheckEntry(variable, field, lowest, highest, guard, allowEmpty, false))
    return;
  guard = false;
  returnFocus();
  guard = true;
}

// One of several fields that are checked together: `error` becomes true when any of them fails.
template <class Field>
bool TestEntry(EntryVariable variable, Field& field, double lowest, double highest, bool& guard, bool allowEmpty,
               bool& error) {
  const bool ok = CheckEntry(variable, field, lowest, highest, guard, allowEmpty, false);
  error = error || !ok;
  return ok;
}

} // namespace trekor
