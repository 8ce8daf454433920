// The comma file on its way to the disk: records are put together in one buffer of 256 KB, in the code page of the
// file, and go out a buffer at a time. A record is a chain of calls that ends with End.
//
// Nothing stops a writing: when the file cannot be made or the disk is full the records are dropped, and Close says so.
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

  // Over an existing file. False when it cannot be made; the calls below may follow all the same.
  bool Open(const std::string& nativePath);
  // True when every byte reached the file.
  bool Close();
  // The system's number of the first failure, 0 when there was none.
  int Error() const { return error; }

  // As it stands.
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
  // In quotes. A quote inside goes out as it is: readers of these files take the fields by place.
  CommaOutput& Quoted(std::string_view utf8);
  // In quotes, exactly so many characters: cut, or padded with blanks.
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
