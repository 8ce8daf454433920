#include "platform_os/SdlLibrary.h"

#include <dlfcn.h>

namespace trekor {

namespace {

// Looked for in the whole process, so that a program which counts the library's calls can stand in for one of them.
template <typename Function> bool Find(const char* name, Function& function) {
  function = reinterpret_cast<Function>(::dlsym(RTLD_DEFAULT, name));
  return function != nullptr;
}

bool Load(SdlLibrary& sdl) {
  if (!::dlopen("libSDL2-2.0.so.0", RTLD_LAZY | RTLD_GLOBAL))
    return false;
  return Find("SDL_SetMainReady", sdl.SetMainReady) && Find("SDL_SetHint", sdl.SetHint) &&
         Find("SDL_InitSubSystem", sdl.InitSubSystem) && Find("SDL_QuitSubSystem", sdl.QuitSubSystem) &&
         Find("SDL_TLSCleanup", sdl.TLSCleanup) && Find("SDL_GetError", sdl.GetError) &&
         Find("SDL_GetNumAudioDevices", sdl.GetNumAudioDevices) && Find("SDL_OpenAudioDevice", sdl.OpenAudioDevice) &&
         Find("SDL_CloseAudioDevice", sdl.CloseAudioDevice) && Find("SDL_PauseAudioDevice", sdl.PauseAudioDevice) &&
         Find("SDL_LockAudioDevice", sdl.LockAudioDevice) && Find("SDL_UnlockAudioDevice", sdl.UnlockAudioDevice) &&
         Find("SDL_RWFromConstMem", sdl.RWFromConstMem) && Find("SDL_LoadWAV_RW", sdl.LoadWave) &&
         Find("SDL_FreeWAV", sdl.FreeWAV) && Find("SDL_BuildAudioCVT", sdl.BuildAudioCVT) &&
         Find("SDL_ConvertAudio", sdl.ConvertAudio);
}

} // namespace

const SdlLibrary* Sdl() {
  static SdlLibrary sdl{};
  static const bool loaded = Load(sdl);
  return loaded ? &sdl : nullptr;
}

} // namespace trekor
