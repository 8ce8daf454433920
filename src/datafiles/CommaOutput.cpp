#include "datafiles/CommaOutput.h"

#include "values/CodePage.h"
#include "values/Text.h"

#include <array>
#include <cerrno>
#include <charconv>

namespace trekor {

constexpr std::size_t BufferSize = std::size_t{256} * 1024;

CommaOutput::CommaOutput() {
  buffer.reserve(BufferSize + 4096);
}

CommaOutput::~CommaOutput() {
  Close();
}

bool CommaOutput::Open(const std::string& nativePath) {
  error = 0;
  file = std::fopen(nativePath.c_str(), "wb");
  Note(file != nullptr);
  if (file)
    std::setvbuf(file, nullptr, _IONBF, 0); // the buffer above is the only one
  return file != nullptr;
}

bool CommaOutput::Close() {
  Flush();
  if (file)
    Note(std::fclose(file) == 0);
  file = nullptr;
  return error == 0;
}

void CommaOutput::Note(bool done) {
  if (!done && error == 0)
    error = errno != 0 ? errno : EIO;
}

void CommaOutput::Flush() {
  if (file)
    Note(std::fwrite(buffer.data(), 1, buffer.size(), file) == buffer.size());
  buffer.clear();
}

CommaOutput& CommaOutput::Whole(long long number) {
  std::array<char, 24> digits{};
  buffer.append(digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr);
  return *this;
}

CommaOutput& CommaOutput::Quoted(std::string_view utf8) {
  buffer += FieldQuote;
  AppendWindows1252(buffer, utf8);
  buffer += FieldQuote;
  return *this;
}

CommaOutput& CommaOutput::Quoted(std::string_view utf8, int characters) {
  return Quoted(FixedWidth(utf8, characters));
}

void CommaOutput::End() {
  buffer += "\r\n";
  if (buffer.size() >= BufferSize)
    Flush();
}

} // namespace trekor
