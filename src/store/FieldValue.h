// One field of a row: null, a whole number, a real number, text (UTF-8) or bytes. Dates are text "YYYY-MM-DD HH:MM:SS",
// local time; booleans are -1 and 0.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace trekor {

using Bytes = std::vector<unsigned char>;

class FieldValue {
public:
  FieldValue() = default;
  FieldValue(int v) : held(static_cast<std::int64_t>(v)) {}
  FieldValue(std::int64_t v) : held(v) {}
  FieldValue(bool v) : held(static_cast<std::int64_t>(v ? -1 : 0)) {}
  FieldValue(double v) : held(v) {}
  FieldValue(std::string v) : held(std::move(v)) {}
  FieldValue(const char* v) : held(std::string(v)) {}
  FieldValue(Bytes v) : held(std::move(v)) {}

  bool IsNull() const { return held.index() == 0; }
  bool IsInteger() const { return held.index() == 1; }
  bool IsReal() const { return held.index() == 2; }
  bool IsText() const { return held.index() == 3; }
  bool IsBytes() const { return held.index() == 4; }

  // The value as each kind; null reads as 0, "" or no bytes. A text reads as the number that it begins with, 0 when
  // there is none; a number reads as its shortest text with "." as mark; a real reads as an integer rounded to nearest,
  // ties to even.
  std::int64_t Integer() const;
  double Number() const;
  std::string Text() const;
  std::string_view TextView() const;           // of a text; empty for any other kind. Lives as long as the value
  bool Flag() const { return Integer() != 0; } // any non-zero counts as true
  const Bytes& Blob() const;

  // Adds bytes behind those already held; a value of another kind is replaced by them.
  void Append(const unsigned char* bytes, std::size_t count);

  bool operator==(const FieldValue&) const = default;

private:
  friend bool NumberIn(const FieldValue& value, double& number);
  std::variant<std::monostate, std::int64_t, double, std::string, Bytes> held;
};

// The number of a value that is one as a whole: a number, or a text that holds nothing else but blanks around it. False
// for null, bytes and any other text.
bool NumberIn(const FieldValue& value, double& number);

} // namespace trekor
