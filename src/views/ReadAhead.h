// What the first picture needs of the toolkit and no window has to stand for: the fonts of the system and the readers
// of picture files. They are read on a thread of their own while the program opens its databases; whoever needs them
// earlier waits for just that.
#pragma once

#include <thread>

namespace trekor {

class ReadAhead {
public:
  ReadAhead(); // the application stands and has its font

private:
  std::jthread reader; // the application must outlive it
};

} // namespace trekor
