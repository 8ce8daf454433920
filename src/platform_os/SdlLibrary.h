// The sound library's operations, found when they are first used. It brings some thirty libraries with it, which the
// first picture would have to wait for.
#pragma once

// The program has its own main.
#define SDL_MAIN_HANDLED
#include <SDL.h>

namespace trekor {

// Found together, when the first is used; without one of them the library counts as not installed.
struct SdlLibrary {
  decltype(&SDL_SetMainReady) SetMainReady;
  decltype(&SDL_SetHint) SetHint;
  decltype(&SDL_InitSubSystem) InitSubSystem;
  decltype(&SDL_QuitSubSystem) QuitSubSystem;
  decltype(&SDL_TLSCleanup) TLSCleanup;
  decltype(&SDL_GetError) GetError;
  decltype(&SDL_GetNumAudioDevices) GetNumAudioDevices;
  decltype(&SDL_OpenAudioDevice) OpenAudioDevice;
  decltype(&SDL_CloseAudioDevice) CloseAudioDevice;
  decltype(&SDL_PauseAudioDevice) PauseAudioDevice;
  decltype(&SDL_LockAudioDevice) LockAudioDevice;
  decltype(&SDL_UnlockAudioDevice) UnlockAudioDevice;
  decltype(&SDL_RWFromConstMem) RWFromConstMem;
  decltype(&SDL_LoadWAV_RW) LoadWave;
  decltype(&SDL_FreeWAV) FreeWAV;
  decltype(&SDL_BuildAudioCVT) BuildAudioCVT;
  decltype(&SDL_ConvertAudio) ConvertAudio;
};

// Null where the library is not installed: the program is silent then. Stays loaded to the end of the process.
const SdlLibrary* Sdl();

} // namespace trekor
