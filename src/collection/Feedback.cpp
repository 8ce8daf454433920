#include "collection/Feedback.h"

#include "values/Text.h"

namespace trekor {

namespace {

const std::string& DigitName(const std::array<std::string, 10>& names, int value) {
  static const std::string none;
  return value >= 0 && value < 10 ? names[static_cast<std::size_t>(value)] : none;
}

} // namespace

void Feedback::LoadSounds() {
  found.clear();
  SystemSounds = {"newsegment", "undefinedkey", "slowdown"};
  for (const auto& name : SystemSounds)
    Found(ctx.state().folders.AudioSystemPath + name + ".WAV");
  ObsVoiceFiles.assign(static_cast<std::size_t>(ctx.rooms.setup.ObsCount()) + 1, "");
  for (std::size_t d = 0; d < 10; ++d) {
    const std::string name = "D" + std::to_string(d);
    ToneFiles[d] = Found(ctx.state().folders.AudioTonesPath + name + ".WAV") ? name : "";
    DigitVoiceFiles[d] = Spoken(name) ? name : "";
  }
  for (int i = 1; i <= ctx.rooms.setup.ObsCount(); ++i) {
    const std::string name = "O" + std::to_string(ctx.rooms.setup.Observations(i).ObsCode);
    ObsVoiceFiles[static_cast<std::size_t>(i)] = Spoken(name) ? name : "";
  }
}

// A word of the language's own voice or, file by file, of the English one.
bool Feedback::Spoken(const std::string& name) {
  const auto& folders = ctx.state().folders;
  if (Found(folders.AudioLanguagePath + name + ".WAV"))
    return true;
  const bool english = Upper(Trim(ctx.state().command.Language)) == "ENGLISH";
  return !english && Found(folders.AudioEnglishPath + name + ".WAV");
}

bool Feedback::PlayWave(const std::string& name) {
  const auto& folders = ctx.state().folders;
  const bool words = ctx.state().options.DataColVoice;
  const std::string file = Trim(name) + ".WAV";
  if (Play((words ? folders.AudioLanguagePath : folders.AudioTonesPath) + file))
    return true;
  if (!words)
    return Play(folders.AudioLanguagePath + file);
  return folders.AudioEnglishPath != folders.AudioLanguagePath && Play(folders.AudioEnglishPath + file);
}

bool Feedback::PlaySystemWave(const std::string& name) {
  return Play(ctx.state().folders.AudioSystemPath + Trim(name) + ".WAV");
}

// System sounds heed no option and no language.
void Feedback::PlaySystemSound(int n) {
  if (n >= 0 && n < 3)
    PlaySystemWave(SystemSounds[static_cast<std::size_t>(n)]);
}

void Feedback::PlayObservationSound(int obs, int value) {
  const auto& options = ctx.state().options;
  if (!options.AssistanceVoice)
    return;
  if (!options.DataColVoice)
    return void(Play_Named(DigitName(ToneFiles, value)));
  const bool known = obs > 0 && obs < static_cast<int>(ObsVoiceFiles.size());
  if (!known || !Play_Named(ObsVoiceFiles[static_cast<std::size_t>(obs)]))
    Play_Named(DigitName(DigitVoiceFiles, value));
}

void Feedback::PlayDigitSound(int value) {
  const auto& options = ctx.state().options;
  if (options.AssistanceVoice)
    Play_Named(DigitName(options.DataColVoice ? DigitVoiceFiles : ToneFiles, value));
}

// True when there was a name to play, whether or not its file could be played.
bool Feedback::Play_Named(const std::string& name) {
  if (name.empty())
    return false;
  PlayWave(name);
  return true;
}

void Feedback::Assist(int number) {
  const auto& options = ctx.state().options;
  const bool spoken = options.AssistanceVoice && PlayWave(std::to_string(number));
  if (!spoken && (options.AssistanceVoice || options.AssistanceText))
    ctx.rooms.messages.ShowMessage(number);
}

bool Feedback::Play(const std::string& path) {
  if (!Found(path))
    return false;
  ctx.rooms.platform.sound.Play(path);
  return true;
}

bool Feedback::Found(const std::string& path) {
  const auto known = found.find(path);
  if (known != found.end())
    return known->second;
  return found[path] = ctx.rooms.platform.drives.FileExists(path);
}

// "Veldmark Trekor - D:\Roads\ROAD09.mdb (1)"
void Feedback::SetCaption() {
  const auto& file = ctx.state().file;
  std::string caption = "Veldmark Trekor";
  if (ctx.run().DataFileOpen)
    caption += " - " + file.DataFilePath + " (" + std::to_string(file.SessionID) + ")";
  ctx.form.SetCaption(caption);
}

void Feedback::AsciiFileProgress(int percent) {
  ctx.form.SetCaption("Writing ASCII output file. Please wait ... (" + std::to_string(percent) + "%)");
  ctx.form.Refresh();
}

} // namespace trekor
