// A wave file as the sound device takes it: 16 bits, little or big end first as the machine has it, two channels.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace trekor {

constexpr int WaveRate = 44100, WaveChannels = 2;

// Whatever kind of wave the file holds. Nobody listens to a key for long: of a long file only the first twenty seconds
// come, so that one put there by mistake holds up no sound after it. Empty when the file can't be read as a wave.
std::vector<std::uint8_t> LoadWave(const std::string& nativePath);

} // namespace trekor
