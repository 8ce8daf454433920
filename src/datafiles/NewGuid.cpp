#include "datafiles/DataFiles.h"

namespace trekor {

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

} // namespace trekor
