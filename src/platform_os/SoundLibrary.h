#pragma once

namespace trekor {

// Stops the libraries behind the sound device from writing to standard error: a dozen lines on a machine without a
// card. To be called before they are first used.
void SilenceSoundLibrary();

} // namespace trekor
