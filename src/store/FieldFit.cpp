#include "store/FieldFit.h"

#include "values/Text.h"

#include <array>
#include <cfloat>
#include <charconv>
#include <cmath>

namespace trekor {

namespace {

bool FitWhole(const FieldValue& value, double lowest, double highest, FieldValue& into) {
  double number = 0;
  if (!NumberIn(value, number))
    return false;
  number = std::nearbyint(number);
  if (!(number >= lowest && number <= highest))
    return false;
  into = FieldValue(static_cast<std::int64_t>(number));
  return true;
}

bool FitReal(const FieldValue& value, bool single, FieldValue& into) {
  double number = 0;
  if (!NumberIn(value, number) || std::isnan(number))
    return false;
  if (single && std::abs(number) > static_cast<double>(FLT_MAX))
    return false;
  into = FieldValue(single ? static_cast<double>(static_cast<float>(number)) : number);
  return true;
}

bool FitText(const FieldValue& value, int size, FieldValue& into) {
  if (value.IsBytes())
    return false;
  if (!value.IsText())
    return FitText(FieldValue(value.Text()), size, into);
  const std::string_view text = value.TextView();
  const bool mayBeLong =
      size > 0 && text.size() > static_cast<std::size_t>(size); // no character is shorter than a byte
  const std::string_view cut = mayBeLong ? CutView(text, size) : text;
  if (cut.size() < text.size())
    into = FieldValue(std::string(cut));
  else
    into = value;
  return true;
}

bool FitFlag(const FieldValue& value, FieldValue& into) {
  double number = 0;
  if (!NumberIn(value, number))
    return false;
  into = FieldValue(number != 0);
  return true;
}

int TwoDigits(std::string_view text, std::size_t at) {
  return (text[at] - '0') * 10 + (text[at + 1] - '0');
}

int DaysOf(int year, int month) {
  constexpr std::array<int, 12> days = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
  return days[static_cast<std::size_t>(month - 1)] + (month == 2 && leap ? 1 : 0);
}

// "2024-02-29 13:05:00", and nothing else: dates are compared and sorted as texts.
bool IsDateText(std::string_view text) {
  constexpr std::string_view shape = "0000-00-00 00:00:00";
  if (text.size() != shape.size())
    return false;
  for (std::size_t i = 0; i < shape.size(); ++i)
    if (shape[i] == '0' ? (text[i] < '0' || text[i] > '9') : text[i] != shape[i])
      return false;
  const int year = TwoDigits(text, 0) * 100 + TwoDigits(text, 2), month = TwoDigits(text, 5);
  if (month < 1 || month > 12 || TwoDigits(text, 8) < 1 || TwoDigits(text, 8) > DaysOf(year, month))
    return false;
  return TwoDigits(text, 11) < 24 && TwoDigits(text, 14) < 60 && TwoDigits(text, 17) < 60;
}

bool FitDate(const FieldValue& value, FieldValue& into) {
  if (!value.IsText() || !IsDateText(value.TextView()))
    return false;
  into = value;
  return true;
}

bool FitBytes(const FieldValue& value, FieldValue& into) {
  if (!value.IsBytes())
    return false;
  into = value;
  return true;
}

struct TypeName {
  std::string_view name;
  FieldType type;
};

constexpr std::array<TypeName, 8> TypeNames = {{{"smallint", FieldType::SmallInt},
                                                {"integer", FieldType::Integer},
                                                {"real", FieldType::Real},
                                                {"single", FieldType::Single},
                                                {"text", FieldType::Text},
                                                {"datetime", FieldType::DateTime},
                                                {"boolean", FieldType::Boolean},
                                                {"longbinary", FieldType::LongBinary}}};

// Parts of type names in files from other programs, in the order in which they are looked for.
constexpr std::array<TypeName, 10> PartNames = {{{"int", FieldType::Integer},
                                                 {"char", FieldType::Text},
                                                 {"text", FieldType::Text},
                                                 {"date", FieldType::DateTime},
                                                 {"bool", FieldType::Boolean},
                                                 {"real", FieldType::Real},
                                                 {"floa", FieldType::Real},
                                                 {"doub", FieldType::Real},
                                                 {"blob", FieldType::LongBinary},
                                                 {"binary", FieldType::LongBinary}}};

std::string HexOf(const Bytes& bytes) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  std::string text;
  for (const unsigned char byte : bytes) {
    text += digits[byte >> 4];
    text += digits[byte & 15];
  }
  return text;
}

} // namespace

bool FitToField(const FieldDefinition& field, const FieldValue& value, FieldValue& into) {
  if (value.IsNull()) {
    into = value;
    return true;
  }
  switch (field.type) {
  case FieldType::SmallInt:
    return FitWhole(value, -32768.0, 32767.0, into);
  case FieldType::Integer:
    return FitWhole(value, -2147483648.0, 2147483647.0, into);
  case FieldType::Real:
    return FitReal(value, false, into);
  case FieldType::Single:
    return FitReal(value, true, into);
  case FieldType::Text:
    return FitText(value, field.size, into);
  case FieldType::DateTime:
    return FitDate(value, into);
  case FieldType::Boolean:
    return FitFlag(value, into);
  case FieldType::LongBinary:
    return FitBytes(value, into);
  }
  return false;
}

FieldType TypeOfDeclaration(std::string_view declaration) {
  const std::string lower = LowerName(declaration);
  const std::string word = lower.substr(0, lower.find_first_of(" ("));
  for (const TypeName& each : TypeNames)
    if (word == each.name)
      return each.type;
  for (const TypeName& each : PartNames)
    if (lower.find(each.name) != std::string::npos)
      return each.type;
  return lower.empty() ? FieldType::Text : FieldType::Real;
}

int SizeOfDeclaration(std::string_view declaration) {
  const std::size_t open = declaration.find('(');
  int size = 0;
  if (open != std::string_view::npos)
    std::from_chars(declaration.data() + open + 1, declaration.data() + declaration.size(), size);
  return size;
}

std::string DeclarationOf(const FieldDefinition& field) {
  std::string text;
  for (const TypeName& each : TypeNames)
    if (each.type == field.type)
      text = Upper(each.name);
  if (field.type != FieldType::Text)
    return text;
  if (field.size > 0)
    text += "(" + FieldValue(field.size).Text() + ")";
  return text + " COLLATE NOCASE";
}

std::string QuotedName(std::string_view name) {
  std::string text = "\"";
  for (const char c : name)
    text += c == '"' ? "\"\"" : std::string(1, c);
  return text + '"';
}

std::string LiteralOf(const FieldValue& value) {
  if (value.IsNull())
    return "NULL";
  if (value.IsBytes())
    return "x'" + HexOf(value.Blob()) + "'";
  if (!value.IsText())
    return value.Text();
  std::string text = "'";
  for (const char c : value.Text())
    text += c == '\'' ? "''" : std::string(1, c);
  return text + "'";
}

} // namespace trekor
