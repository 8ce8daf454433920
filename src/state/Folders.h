// Roots the folder tree under the drive from which the program runs.
#pragma once

#include "platform/Platform.h"
#include "state/ProgramState.h"

namespace trekor {

// Fills the folder fields, makes MdbFolder (one level, with drive C as second try), copies the hardware template.
void FolderRoots(FolderPaths& folders, Platform& platform);
// The folders below AppPath; the language's own audio folder falls back to English when it holds no file.
void AudioFolders(FolderPaths& folders);
void LanguageAudioFolder(FolderPaths& folders, const std::string& language, Drives& drives);

} // namespace trekor
