// The Windows virtual-key codes that the program's own commands use.
#pragma once

namespace trekor::keys {

constexpr int Esc = 27, Up = 38, Down = 40, Delete = 46;
constexpr int F2 = 113, F3 = 114, F4 = 115, F11 = 122;
constexpr int NumLock = 144;

} // namespace trekor::keys
