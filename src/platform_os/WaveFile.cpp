#include "platform_os/WaveFile.h"

#include "platform_os/FileDrives.h"
#include "platform_os/SdlLibrary.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace trekor {

namespace {

constexpr std::size_t LongestFile = std::size_t{8} << 20;
constexpr Uint32 LongestSeconds = 20;
// A rate out of these is a broken head; the library would ask for memory by it.
constexpr int LowestRate = 4000, HighestRate = 192000;

std::vector<char> Beginning(const std::filesystem::path& file) {
  std::error_code failed;
  const std::uintmax_t size = std::filesystem::file_size(file, failed);
  if (failed) // a pipe, too, whose opening might hang
    return {};
  std::vector<char> bytes(static_cast<std::size_t>(std::min<std::uintmax_t>(size, LongestFile)));
  std::ifstream in(file, std::ios::binary);
  in.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  bytes.resize(static_cast<std::size_t>(in.gcount()));
  return bytes;
}

std::vector<std::uint8_t> Converted(const SdlLibrary& sdl, const SDL_AudioSpec& file, const Uint8* bytes,
                                    Uint32 length) {
  std::vector<std::uint8_t> samples;
  SDL_AudioCVT cvt{};
  if (file.freq < LowestRate || file.freq > HighestRate ||
      sdl.BuildAudioCVT(&cvt, file.format, file.channels, file.freq, AUDIO_S16SYS, WaveChannels, WaveRate) < 0)
    return samples;
  const Uint32 frame = SDL_AUDIO_BITSIZE(file.format) / 8U * file.channels;
  length = std::min(length, LongestSeconds * static_cast<Uint32>(file.freq) * frame);
  samples.resize(std::size_t{length} * static_cast<std::size_t>(std::max(1, cvt.len_mult)));
  std::copy_n(bytes, length, samples.begin());
  cvt.buf = samples.data();
  cvt.len = static_cast<int>(length);
  cvt.len_cvt = cvt.len;
  samples.resize(!cvt.needed || sdl.ConvertAudio(&cvt) == 0 ? static_cast<std::size_t>(cvt.len_cvt) : 0);
  return samples;
}

} // namespace

std::vector<std::uint8_t> LoadWave(const std::string& nativePath) {
  std::vector<std::uint8_t> samples;
  const SdlLibrary* sdl = Sdl();
  const std::vector<char> file = sdl ? Beginning(PathFromText(nativePath)) : std::vector<char>();
  SDL_AudioSpec format{};
  Uint8* bytes = nullptr;
  Uint32 length = 0;
  SDL_RWops* source = file.empty() ? nullptr : sdl->RWFromConstMem(file.data(), static_cast<int>(file.size()));
  if (source && sdl->LoadWave(source, 1, &format, &bytes, &length)) {
    samples = Converted(*sdl, format, bytes, length);
    sdl->FreeWAV(bytes);
  }
  return samples;
}

} // namespace trekor
