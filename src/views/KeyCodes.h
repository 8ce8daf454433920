// From the toolkit's keys to Windows virtual-key codes, which are what the setups store and the run understands.
#pragma once

namespace trekor {

// `key` is the toolkit's key (Qt::Key), `keypad` whether it lies on the number pad. `scan` is the number of the key on
// the machine (evdev numbers, 2 to 11 for the row of digits; 0 when unknown): it tells the digit below a shifted sign,
// whatever the keyboard's language, and the key (86) that European boards have more. 0 for a key that has no code.
//
// With NumLock off the toolkit reports the pad's other meaning (Key_Home ...), which has a code of its own: the pad's
// digits 96 to 105 exist only with NumLock on.
int KeyCodeOf(int key, bool keypad, unsigned scan);

} // namespace trekor
