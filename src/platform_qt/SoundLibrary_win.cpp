#include "platform_qt/SoundLibrary.h"

namespace trekor {

void SilenceSoundLibrary() {} // nothing writes there

} // namespace trekor
