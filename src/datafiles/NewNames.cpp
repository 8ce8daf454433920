#include "datafiles/NewNames.h"

#include "values/Text.h"

namespace trekor {
namespace {

// Decimal, however many digits a name has: "09" gives "10", "99" gives "100".
std::string CountOn(std::string digits) {
  for (std::size_t i = digits.size(); i-- > 0;) {
    if (digits[i] != '9') {
      ++digits[i];
      return digits;
    }
    digits[i] = '0';
  }
  return "1" + digits;
}

// The name after this one: trailing digits of the base name count on, a name without any gets a 1.
std::string NextName(const std::string& path) {
  const std::size_t slash = path.rfind('\\');
  const std::size_t nameStart = slash == std::string::npos ? 0 : slash + 1;
  const std::size_t dot = path.rfind('.');
  const std::size_t baseEnd = dot == std::string::npos || dot < nameStart ? path.size() : dot;
  std::size_t digits = baseEnd;
  while (digits > nameStart && path[digits - 1] >= '0' && path[digits - 1] <= '9')
    --digits;
  const std::string number = digits < baseEnd ? CountOn(path.substr(digits, baseEnd - digits)) : "1";
  return path.substr(0, digits) + number + path.substr(baseEnd);
}

} // namespace

std::string NewGuid(bool withDashes, Process& process) {
  unsigned char bytes[16] = {};
  if (!process.NewGuidBytes(bytes))
    return "";
  std::string text;
  int count = 0;
  for (const unsigned char b : bytes) {
    // Three dashes, not the usual four: data files in the field have the last eight bytes together.
    if (withDashes && (count == 4 || count == 6 || count == 8))
      text += '-';
    text += "0123456789ABCDEF"[b >> 4U];
    text += "0123456789ABCDEF"[b & 15U];
    ++count;
  }
  return text;
}

std::string DataNameOf(const std::string& fileName) {
  const std::size_t length = fileName.size();
  const bool extended = length >= 4 && SameText(std::string_view(fileName).substr(length - 4), ".MDB");
  return extended ? fileName.substr(0, length - 4) : fileName;
}

std::string NextFreeName(const std::string& path, Drives& drives) {
  std::string name = path;
  while (drives.FileExists(name))
    name = NextName(name);
  return name;
}

} // namespace trekor
