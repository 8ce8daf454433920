// The wave files that a release ships: 16 bits, mono, 22050 samples a second; little-endian whatever the machine.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

constexpr int Rate = 22050;

using Samples = std::vector<double>; // 1 is full scale

inline int Count(double seconds) {
  return static_cast<int>(std::lround(seconds * Rate));
}

inline void Put(std::string& to, std::uint32_t value, int bytes) {
  for (int i = 0; i < bytes; ++i)
    to.push_back(static_cast<char>((value >> (8 * i)) & 0xFF));
}

inline std::string WaveFile(const Samples& samples) {
  const auto dataBytes = static_cast<std::uint32_t>(samples.size() * 2);
  std::string out = "RIFF";
  Put(out, 36 + dataBytes, 4);
  out += "WAVEfmt ";
  Put(out, 16, 4); // length of the format part
  Put(out, 1, 2);  // plain samples
  Put(out, 1, 2);  // one channel
  Put(out, Rate, 4);
  Put(out, Rate * 2, 4); // bytes a second
  Put(out, 2, 2);        // bytes a sample
  Put(out, 16, 2);       // bits a sample
  out += "data";
  Put(out, dataBytes, 4);
  for (const double s : samples)
    Put(out, static_cast<std::uint32_t>(std::lround(std::clamp(s, -1.0, 1.0) * 32767)), 2);
  return out;
}

// Makes the folder, too.
inline bool WriteWave(const std::filesystem::path& path, const Samples& samples) {
  std::error_code ignored;
  std::filesystem::create_directories(path.parent_path(), ignored);
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  const std::string bytes = WaveFile(samples);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return out.flush().good();
}
