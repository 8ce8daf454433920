#include "platform_os/SoundLibrary.h"

namespace trekor {

void SilenceSoundLibrary() {} // nothing writes there

} // namespace trekor
