// The file calls of this process, counted and made to fail. They stand in front of the system's own in this test
// program, so the drives, the standard library and the storage library all pass through here.
#pragma once

#include <string>
#include <vector>

namespace trekor::tests {

enum class Fault {
  None,
  FailOnce,  // of all calls, reads and looks as well; the others below count those that change something
  DiskFull,  // from then on nothing can be changed
  DriveGone, // from then on every call fails
  Kill       // of the process; a write is half done
};

struct FileCall {
  std::string name, path, to; // `to` of a rename alone
};

// While it lives, the calls are counted and the n-th fails.
class FileFaults {
public:
  explicit FileFaults(Fault fault = Fault::None, int n = 0);
  ~FileFaults();
  FileFaults(const FileFaults&) = delete;
  FileFaults& operator=(const FileFaults&) = delete;
  int Count() const;
  // Those that changed something, in order.
  const std::vector<FileCall>& Made() const;
};

} // namespace trekor::tests
