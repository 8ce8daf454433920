#include "services/Pictures.h"

#include <cstdio>
#include <memory>
#include <vector>

namespace trekor {

namespace {

constexpr std::size_t BlockSize = 8192;

struct Failure {
  const char* description;
  int number;
};
constexpr Failure NoFailure = {"", 0};
constexpr Failure CantWrite = {"Work file can't be written", 75};
constexpr Failure CantRead = {"Work file not found", 53};
constexpr Failure NoField = {"The field takes no picture", 3265};

struct FileCloser {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using OpenFile = std::unique_ptr<std::FILE, FileCloser>;

std::size_t LengthOf(std::FILE* file) {
  std::fseek(file, 0, SEEK_END);
  const long length = std::ftell(file);
  std::rewind(file);
  return length > 0 ? static_cast<std::size_t>(length) : 0;
}

// Reads a buffer of highest subscript + 1 bytes. What lies beyond the end of the file stays zero, and is appended too.
Failure AppendBuffer(Recordset& row, const std::string& field, std::FILE* file, std::size_t highestSubscript) {
  std::vector<unsigned char> buffer(highestSubscript + 1);
  const std::size_t read = std::fread(buffer.data(), 1, buffer.size(), file);
  if (read < buffer.size() && std::ferror(file) != 0)
    return CantRead;
  return row.AppendChunk(field, buffer.data(), buffer.size()) ? NoFailure : NoField;
}

// The remainder first, then the whole blocks, each read with one byte too many: data files in the field hold their
// pictures with this tail of zeros, one byte for the remainder and one for each block.
Failure AppendFile(Recordset& row, const std::string& field, const std::string& nativePath, Pump& pump) {
  const OpenFile file(std::fopen(nativePath.c_str(), "rb"));
  if (!file)
    return CantRead;
  const std::size_t length = LengthOf(file.get());
  Failure failure = AppendBuffer(row, field, file.get(), length % BlockSize);
  for (std::size_t block = 0; failure.number == 0 && block < length / BlockSize; ++block) {
    failure = AppendBuffer(row, field, file.get(), BlockSize);
    if (failure.number == 0)
      pump.ProcessEvents();
  }
  return failure;
}

} // namespace

bool dbSaveImage(Recordset* row, const std::string& field, const std::string& picture, const FolderPaths& folders,
                 Platform& platform, bool tell) {
  if (!row || picture.empty())
    return true;
  const std::string workFile = platform.drives.NativePath(folders.AppPath + "\\temp.bin");
  const PictureFile saved = platform.shell.SavePicture(picture, workFile);
  if (saved == PictureFile::NoPicture)
    return true;
  const Failure failure = saved == PictureFile::Written ? AppendFile(*row, field, workFile, platform.pump) : CantWrite;
  if (failure.number != 0 && tell)
    platform.shell.MsgBox(std::string("dbSaveImage: ") + failure.description + " (" + std::to_string(failure.number) +
                              ")",
                          folders.programName, BoxIcon::None);
  return failure.number == 0;
}

} // namespace trekor
