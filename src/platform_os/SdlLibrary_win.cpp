// Linked as usual: here it brings no others with it.
#include "platform_os/SdlLibrary.h"

namespace trekor {

const SdlLibrary* Sdl() {
  static const SdlLibrary sdl{&SDL_SetMainReady,       &SDL_SetHint,         &SDL_InitSubSystem,
                              &SDL_QuitSubSystem,      &SDL_TLSCleanup,      &SDL_GetError,
                              &SDL_GetNumAudioDevices, &SDL_OpenAudioDevice, &SDL_CloseAudioDevice,
                              &SDL_PauseAudioDevice,   &SDL_LockAudioDevice, &SDL_UnlockAudioDevice,
                              &SDL_RWFromConstMem,     &SDL_LoadWAV_RW,      &SDL_FreeWAV,
                              &SDL_BuildAudioCVT,      &SDL_ConvertAudio};
  return &sdl;
}

} // namespace trekor
