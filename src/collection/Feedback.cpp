#include "collection/Feedback.h"

#include "values/Text.h"

namespace trekor {

namespace {

std::string WaveName(const std::string& name) {
  return Trim(name) + ".WAV";
}

} // namespace

void Feedback::LoadSounds() {
  const auto& folders = state.folders;
  for (std::size_t d = 0; d < 10; ++d) {
    const std::string name = "D" + std::to_string(d), tone = folders.AudioTonesPath + WaveName(name);
    DigitVoiceFiles[d] = Words(name);
    ToneFiles[d] = {tone};
    // A digit that has its tone when the setup is chosen is spoken when the tone is gone later; one that has none is
    // silent.
    if (drives.FileExists(tone))
      ToneFiles[d].push_back(folders.AudioLanguagePath + WaveName(name));
  }
  ObsVoiceFiles.assign(1, {});
  for (int i = 1; i <= setup.ObsCount(); ++i)
    ObsVoiceFiles.push_back(Words("O" + std::to_string(setup.Observations(i).ObsCode)));
}

// The language's own voice or, file by file, the English one.
Feedback::Places Feedback::Words(const std::string& name) const {
  const auto& folders = state.folders;
  Places places{folders.AudioLanguagePath + WaveName(name)};
  if (folders.AudioEnglishPath != folders.AudioLanguagePath)
    places.push_back(folders.AudioEnglishPath + WaveName(name));
  return places;
}

bool Feedback::PlayWave(const std::string& name) {
  const auto& folders = state.folders;
  const Places places = state.options.DataColVoice ? Words(name)
                                                   : Places{folders.AudioTonesPath + WaveName(name),
                                                            folders.AudioLanguagePath + WaveName(name)};
  for (const std::string& path : places)
    if (drives.FileExists(path)) {
      sound.Play({path});
      return true;
    }
  return false;
}

void Feedback::PlaySystemWave(const std::string& name) {
  sound.Play({state.folders.AudioSystemPath + WaveName(name)});
}

// System sounds depend on no option and no language.
void Feedback::PlaySystemSound(SystemSound which) {
  PlaySystemWave(SystemSounds[static_cast<std::size_t>(which)]);
}

// The observation's own word or, when it has none, the digit's.
void Feedback::PlayObservationSound(int obs, int value) {
  const auto& options = state.options;
  const bool known = obs > 0 && obs < static_cast<int>(ObsVoiceFiles.size());
  if (!options.AssistanceVoice || !options.DataColVoice || !known)
    return PlayDigitSound(value);
  Places places = ObsVoiceFiles[static_cast<std::size_t>(obs)];
  if (value >= 0 && value < 10)
    places.insert(places.end(), DigitVoiceFiles[static_cast<std::size_t>(value)].begin(),
                  DigitVoiceFiles[static_cast<std::size_t>(value)].end());
  sound.Play(places);
}

void Feedback::PlayDigitSound(int value) {
  const auto& options = state.options;
  if (options.AssistanceVoice && value >= 0 && value < 10)
    sound.Play((options.DataColVoice ? DigitVoiceFiles : ToneFiles)[static_cast<std::size_t>(value)]);
}

void Feedback::Assist(int number) {
  const auto& options = state.options;
  const bool spoken = options.AssistanceVoice && PlayWave(std::to_string(number));
  if (!spoken && (options.AssistanceVoice || options.AssistanceText))
    messages.ShowMessage(number);
}

} // namespace trekor
