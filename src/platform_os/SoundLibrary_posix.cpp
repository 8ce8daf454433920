#include "platform_os/SoundLibrary.h"

#include <dlfcn.h>

namespace trekor {

namespace {
// NOLINTNEXTLINE(cert-dcl50-cpp): the library's own type, of C
void WriteNothing(const char*, int, const char*, int, const char*, ...) {}
} // namespace

// Loaded by name, so that the program needs neither ALSA nor its headers. The library stays loaded, as its error
// handler is set for the rest of the process.
void SilenceSoundLibrary() {
  void* alsa = ::dlopen("libasound.so.2", RTLD_LAZY);
  void* set = alsa ? ::dlsym(alsa, "snd_lib_error_set_handler") : nullptr;
  if (set)
    reinterpret_cast<int (*)(decltype(&WriteNothing))>(set)(&WriteNothing);
}

} // namespace trekor
