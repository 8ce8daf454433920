// What the operator hears and reads beside the grid: the sound of each key, the caption of the form.
#pragma once

#include "collection/RunContext.h"

#include <array>
#include <map>
#include <string>
#include <vector>

namespace trekor {

class Feedback {
public:
  explicit Feedback(RunContext& context) : ctx(context) {}

  // Fills the name tables for the running setup and looks up every file once, so that no key searches a folder. A wave
  // that is added later is found when a setup is chosen again.
  void LoadSounds();
  // Plays NAME.WAV from the folder of the chosen kind (words or tones) or from the one behind it. False: nothing plays.
  bool PlayWave(const std::string& name);
  bool PlaySystemWave(const std::string& name);
  void PlaySystemSound(int n); // 0 newsegment, 1 undefinedkey, 2 slowdown
  // `value` is a digit; anything else (-1: no digit) has no digit sound.
  void PlayObservationSound(int obs, int value);
  void PlayDigitSound(int value);
  // Speaks or shows an assistance message.
  void Assist(int number);

  void SetCaption();
  void AsciiFileProgress(int percent);

private:
  bool Found(const std::string& path);
  bool Play(const std::string& path);
  bool Spoken(const std::string& name);
  bool Play_Named(const std::string& name);

  RunContext& ctx;
  std::array<std::string, 3> SystemSounds{"newsegment", "undefinedkey", "slowdown"};
  std::array<std::string, 10> ToneFiles, DigitVoiceFiles;
  std::vector<std::string> ObsVoiceFiles; // by observation; entry 0 stays empty
  std::map<std::string, bool> found;      // paths that were looked for since LoadSounds
};

} // namespace trekor
