// Writes the comma file: records are put together in one buffer of 256 KB, in the file's code page, and written a
// buffer at a time. A record is a chain of calls that ends with End.
//
// A failure stops nothing: when the file can't be made or the disk is full, records are dropped and Close is false.
#pragma once

#include "values/NumberText.h"

#include <cstdio>
#include <string>
#include <string_view>

namespace trekor {

constexpr char FieldSeparator = ',', FieldQuote = '"';

class CommaOutput {
public:
  CommaOutput();
  ~CommaOutput();
  CommaOutput(const CommaOutput&) = delete;
  CommaOutput& operator=(const CommaOutput&) = delete;

  // Over an existing file. False when it can't be made; the other calls may follow all the same.
  bool Open(const std::string& nativePath);
  // True when every byte reached the file.
  bool Close();
  // The error number of the first failure, 0 when there was none.
  int Error() const { return error; }

  // Without a change.
  CommaOutput& Raw(std::string_view ascii) {
    buffer.append(ascii);
    return *this;
  }
  CommaOutput& Comma() {
    buffer += FieldSeparator;
    return *this;
  }
  CommaOutput& Digit(int d) {
    buffer += static_cast<char>('0' + d);
    return *this;
  }
  CommaOutput& Whole(long long number);
  // Padded to the pattern's width, and bare.
  CommaOutput& Fixed(double number, const NumberPattern& pattern) {
    pattern.AppendFixed(buffer, number);
    return *this;
  }
  CommaOutput& Bare(double number, const NumberPattern& pattern) {
    pattern.AppendBare(buffer, number);
    return *this;
  }
  // In quotes. A quote inside is not escaped: readers of these files take the fields by place.
  CommaOutput& Quoted(std::string_view utf8);
  // In quotes, exactly that many characters: cut, or padded with blanks.
  CommaOutput& Quoted(std::string_view utf8, int characters);
  // CR LF.
  void End();

private:
  void Flush();
  void Note(bool done);
  std::string buffer;
  std::FILE* file = nullptr;
  int error = 0;
};

} // namespace trekor
