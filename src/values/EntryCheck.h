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

} // namespace trekor
