#pragma once

namespace trekor {

// Keeps off standard error what the libraries behind the sound device write there by themselves: a dozen lines on a
// machine without a card. To be called before they are first used.
void SilenceSoundLibrary();

} // namespace trekor
