#include "values/EntryCheck.h"

#include "values/NumberText.h"
#include "values/Text.h"

#include <algorithm>

namespace trekor {
namespace {

// Each width of variable: its sentinel, the number in its width (nothing when it does not fit), its text.
std::int16_t Sentinel(const std::int16_t&) {
  return NaNInteger;
}
std::int32_t Sentinel(const std::int32_t&) {
  return NaNLong;
}
float Sentinel(const float&) {
  return NaNSingle;
}
double Sentinel(const double&) {
  return NaN;
}

std::optional<std::int16_t> Convert(double number, const std::int16_t&) {
  return ToInteger16(number);
}
std::optional<std::int32_t> Convert(double number, const std::int32_t&) {
  return ToInteger32(number);
}
std::optional<float> Convert(double number, const float&) {
  return ToSingle(number);
}
std::optional<double> Convert(double number, const double&) {
  return number;
}

std::string TextOf(float value) {
  return SingleToText(value);
}
std::string TextOf(double value) {
  return NumberToText(value);
}
std::string TextOf(std::int32_t value) {
  return std::to_string(value);
}

struct Check {
  double number;
  bool outOfRange, empty;

  EntryResult operator()(std::monostate) const { return {}; }

  template <class T> EntryResult operator()(T* variable) const {
    if (empty) {
      *variable = Sentinel(*variable);
      // The field's change handler stays quiet after an emptied field: the guard is not put back on this path.
      return {true, true, true, ""};
    }
    const std::optional<T> converted = Convert(number, *variable);
    if (converted && *converted != Sentinel(*variable))
      *variable = *converted;
    return {!outOfRange, false, true, TextOf(*variable)};
  }
};

} // namespace

EntryResult CheckEntryText(EntryVariable variable, const std::string& text, double lowest, double highest,
                           bool allowEmpty) {
  const std::string typed = Trim(NormalizeDecimal(text));
  double number = Val(typed);
  const bool below = number < lowest, above = !below && number > highest;
  number = below ? lowest : above ? highest : number;
  return std::visit(Check{number, below || above, typed.empty() && allowEmpty}, variable);
}

} // namespace trekor
