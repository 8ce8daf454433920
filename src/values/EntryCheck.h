// The check behind every numeric entry field: text to number, limits, back to text.
#pragma once

#include <cstdint>
#include <string>
#include <variant>

namespace trekor {

// The variable behind a field. Any other kind of variable ends the check with false.
using EntryVariable = std::variant<std::monostate, std::int16_t*, std::int32_t*, float*, double*>;

struct EntryResult {
  bool ok = false;         // nothing was out of range
  bool guardStays = false; // the allow-empty path leaves the guard cleared
  bool rewrite = false;    // the field takes `text`
  std::string text;
};
// The check without the field: reads `text`, writes the variable.
EntryResult CheckEntryText(EntryVariable variable, const std::string& text, double lowest, double highest,
                           bool allowEmpty);

// `Field` has Text, SetText and CaretToStart. `guard` quiets the field's own change handler meanwhile.
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

// When the operator leaves the field: with a wrong entry he is sent back to it by `returnFocus`, which also lets events
// run. The guard is off meanwhile, as the field that loses the focus again must not be checked again.
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
