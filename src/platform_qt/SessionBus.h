// The message bus of the desktop's session, which the toolkit and the sound library look for.
#pragma once

namespace trekor {

// Whether the session has one: its address, or the usual socket. Never on Windows.
bool HasSessionBus();

// Where there is none the libraries would start one of their own: in a fork of a program that has threads by then,
// which can hang, and the sound with it. To be called before the first thread.
void StartNoSessionBus();

} // namespace trekor
