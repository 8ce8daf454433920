// What the operator hears and reads beside the grid: the sound of each key, the caption of the form.
#pragma once

#include "collection/RunContext.h"

#include <array>
#include <string>
#include <vector>

namespace trekor {

class Feedback {
public:
  explicit Feedback(RunContext& context) : ctx(context) {}

  // Fills the tables for the running setup.
  void LoadSounds();
  // Plays NAME.WAV from the folder of the chosen kind (words or tones) or from the one behind it. False: nothing plays.
  // Looks into the folders, which no key may wait for.
  bool PlayWave(const std::string& name);
  void PlaySystemWave(const std::string& name);
  void PlaySystemSound(int n); // 0 newsegment, 1 undefinedkey, 2 slowdown
  // `value` is a digit; anything else (-1: no digit) has no digit sound.
  void PlayObservationSound(int obs, int value);
  void PlayDigitSound(int value);
  // Speaks or shows an assistance message.
  void Assist(int number);

  void SetCaption();
  void AsciiFileProgress(int percent);

private:
  // Places of one sound, the best first. The player looks which are there when it plays, so that a wave which came or
  // went is noticed at the next key.
  using Places = std::vector<std::string>;
  Places Words(const std::string& name) const;

  RunContext& ctx;
  std::array<std::string, 3> SystemSounds{"newsegment", "undefinedkey", "slowdown"};
  std::array<Places, 10> ToneFiles, DigitVoiceFiles;
  std::vector<Places> ObsVoiceFiles; // by observation; entry 0 stays empty
};

} // namespace trekor
