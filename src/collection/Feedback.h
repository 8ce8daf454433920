// What the operator hears: the sound of each key, and assistance messages, spoken or shown.
#pragma once

#include "platform/Drives.h"
#include "platform/SoundPlayer.h"
#include "setup/TestSetup.h"
#include "state/ProgramState.h"
#include "texts/MessageCatalogue.h"

#include <array>
#include <string>
#include <vector>

namespace trekor {

// In the order of their names in Feedback.
enum class SystemSound { NewSegment, UndefinedKey, SlowDown };

class Feedback {
public:
  Feedback(const ProgramState& state, SoundPlayer& sound, Drives& drives, const TestSetup& setup,
           MessageCatalogue& messages)
      : state(state), sound(sound), drives(drives), setup(setup), messages(messages) {}

  // Fills the tables for the running setup.
  void LoadSounds();
  // Plays NAME.WAV from the folder of the chosen kind (words or tones), else from the second folder of that kind. False
  // when neither has it. Looks into the folders itself, which is too slow for keys.
  bool PlayWave(const std::string& name);
  void PlaySystemWave(const std::string& name);
  void PlaySystemSound(SystemSound sound);
  // `value` is a digit 0 to 9; for anything else there is no digit sound.
  void PlayObservationSound(int obs, int value);
  void PlayDigitSound(int value);
  // Speaks or shows an assistance message.
  void Assist(int number);

private:
  // Paths of one sound, the best first. The player looks which of them exist when it plays, so that an added or removed
  // wave counts from the next key on.
  using Places = std::vector<std::string>;
  Places Words(const std::string& name) const;

  const ProgramState& state;
  SoundPlayer& sound;
  Drives& drives;
  const TestSetup& setup;
  MessageCatalogue& messages;
  std::array<std::string, 3> SystemSounds{"newsegment", "undefinedkey", "slowdown"};
  std::array<Places, 10> ToneFiles, DigitVoiceFiles;
  std::vector<Places> ObsVoiceFiles; // by observation; entry 0 stays empty
};

} // namespace trekor
