#include "collection/Feedback.h"

#include "values/Text.h"

namespace trekor {

namespace {

std::string WaveName(const std::string& name) {
  return Trim(name) + ".WAV";
}

} // namespace

void Feedback::LoadSounds() {
  const auto& folders = ctx.State().folders;
  for (std::size_t d = 0; d < 10; ++d) {
    const std::string name = "D" + std::to_string(d), tone = folders.AudioTonesPath + WaveName(name);
    DigitVoiceFiles[d] = Words(name);
    ToneFiles[d] = {tone};
    // A digit that had its tone when the setup was chosen is spoken when the tone has gone; one that had none is
    // silent.
    if (ctx.rooms.platform.drives.FileExists(tone))
      ToneFiles[d].push_back(folders.AudioLanguagePath + WaveName(name));
  }
  ObsVoiceFiles.assign(1, {});
  for (int i = 1; i <= ctx.rooms.setup.ObsCount(); ++i)
    ObsVoiceFiles.push_back(Words("O" + std::to_string(ctx.rooms.setup.Observations(i).ObsCode)));
}

// The language's own voice or, file by file, the English one.
Feedback::Places Feedback::Words(const std::string& name) const {
  const auto& folders = ctx.State().folders;
  Places places{folders.AudioLanguagePath + WaveName(name)};
  if (folders.AudioEnglishPath != folders.AudioLanguagePath)
    places.push_back(folders.AudioEnglishPath + WaveName(name));
  return places;
}

bool Feedback::PlayWave(const std::string& name) {
  const auto& folders = ctx.State().folders;
  const Places places = ctx.State().options.DataColVoice ? Words(name)
                                                         : Places{folders.AudioTonesPath + WaveName(name),
                                                                  folders.AudioLanguagePath + WaveName(name)};
  for (const std::string& path : places)
    if (ctx.rooms.platform.drives.FileExists(path)) {
      ctx.rooms.platform.sound.Play({path});
      return true;
    }
  return false;
}

void Feedback::PlaySystemWave(const std::string& name) {
  ctx.rooms.platform.sound.Play({ctx.State().folders.AudioSystemPath + WaveName(name)});
}

// System sounds heed no option and no language.
void Feedback::PlaySystemSound(int n) {
  if (n >= 0 && n < 3)
    PlaySystemWave(SystemSounds[static_cast<std::size_t>(n)]);
}

// The observation's own word or, when it has none, the digit's.
void Feedback::PlayObservationSound(int obs, int value) {
  const auto& options = ctx.State().options;
  const bool known = obs > 0 && obs < static_cast<int>(ObsVoiceFiles.size());
  if (!options.AssistanceVoice || !options.DataColVoice || !known)
    return PlayDigitSound(value);
  Places places = ObsVoiceFiles[static_cast<std::size_t>(obs)];
  if (value >= 0 && value < 10)
    places.insert(places.end(), DigitVoiceFiles[static_cast<std::size_t>(value)].begin(),
                  DigitVoiceFiles[static_cast<std::size_t>(value)].end());
  ctx.rooms.platform.sound.Play(places);
}

void Feedback::PlayDigitSound(int value) {
  const auto& options = ctx.State().options;
  if (options.AssistanceVoice && value >= 0 && value < 10)
    ctx.rooms.platform.sound.Play(
        (options.DataColVoice ? DigitVoiceFiles : ToneFiles)[static_cast<std::size_t>(value)]);
}

void Feedback::Assist(int number) {
  const auto& options = ctx.State().options;
  const bool spoken = options.AssistanceVoice && PlayWave(std::to_string(number));
  if (!spoken && (options.AssistanceVoice || options.AssistanceText))
    ctx.rooms.messages.ShowMessage(number);
}

// "Veldmark Trekor - D:\Roads\ROAD09.mdb (1)"
void Feedback::SetCaption() {
  const auto& file = ctx.State().file;
  std::string caption = "Veldmark Trekor";
  if (ctx.Flags().DataFileOpen)
    caption += " - " + file.DataFilePath + " (" + std::to_string(file.SessionID) + ")";
  ctx.form.SetCaption(caption);
}

void Feedback::AsciiFileProgress(int percent) {
  ctx.form.SetCaption("Writing ASCII output file. Please wait ... (" + std::to_string(percent) + "%)");
  ctx.form.Refresh();
}

} // namespace trekor
