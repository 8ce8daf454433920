// From the toolkit's keys to Windows virtual-key codes, which the setups store and the run works with.
#pragma once

namespace trekor {

// `key` is the toolkit's key (Qt::Key), `keypad` whether it is on the number pad. `scan` is the machine's number of the
// key (evdev numbers, 2 to 11 for the row of digits; 0 when unknown): it tells which digit is on a key that writes a
// shifted sign, whatever the keyboard's language, which letter on one that writes Russian or Greek, and the extra key
// (86) of European boards. 0 for a key without a code.
//
// With NumLock off the toolkit reports the pad's other meaning (Key_Home ...), which has a code of its own: the pad's
// digits 96 to 105 exist only with NumLock on.
int KeyCodeOf(int key, bool keypad, unsigned scan);

} // namespace trekor
