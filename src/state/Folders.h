// Roots the folder tree under the drive from which the program runs.
#pragma once

#include "platform/Platform.h"
#include "state/ProgramState.h"

namespace trekor {

// Fills the folder fields, makes MdbFolder (one level; when that fails, the same path on drive C) and copies the
// hardware template. Failures are skipped.
void FolderRoots(FolderPaths& folders, Platform& platform);
// The folders below AppPath; then the audio folder of the language, which is the English one when that holds no file.
void AudioFolders(FolderPaths& folders);
void LanguageAudioFolder(FolderPaths& folders, const std::string& language, Drives& drives);

} // namespace trekor
