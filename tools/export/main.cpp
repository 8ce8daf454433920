// trekor-export: comma files from closed data files in bulk, for the office.
#include "Disk.h"
#include "Exporter.h"
#include "state/Version.h"

#include <algorithm>
#include <cstdio>

namespace {

using namespace trekor;

// One line on a terminal, written over and over; nothing where the words are kept in a file.
class ProgressLine {
public:
  void Show(const std::string& file, int percent) {
    if (terminal)
      std::fprintf(stderr, "\r\x1b[K%s: %d %%", file.c_str(), percent);
    shown = terminal;
  }
  // Before anything else is said.
  void Clear() {
    if (shown)
      std::fputs("\r\x1b[K", stderr);
    shown = false;
  }

private:
  const bool terminal = IsTerminal(stderr);
  bool shown = false;
};

Exit Run(const Arguments& wishes) {
  if (wishes.help) {
    std::fputs(HelpText, stdout);
    return Exit::Done;
  }
  if (wishes.version) {
    std::printf("trekor-export %d.%d.%d\n", VersionMajor, VersionMinor, VersionRevision);
    return Exit::Done;
  }
  Exporter exporter(wishes);
  ProgressLine line;
  Exit worst = Exit::Done;
  for (const std::string& file : wishes.files) {
    std::string written, told;
    exporter.Progress() = [&](int percent) { line.Show(file, percent); };
    worst = std::max(worst, exporter.Export(file, written, told));
    line.Clear();
    std::fputs(written.c_str(), stdout);
    std::fputs(told.c_str(), stderr);
  }
  return worst;
}

} // namespace

int main(int argc, char** argv) {
  Arguments wishes;
  std::string error;
  if (!ReadArguments({argv + 1, argv + argc}, wishes, error)) {
    std::fprintf(stderr, "trekor-export: %s\n", error.c_str());
    return static_cast<int>(Exit::Words);
  }
  PrepareDisk();
  const Exit code = Run(wishes);
  if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0)
    return static_cast<int>(code);
  std::fprintf(stderr, "trekor-export: the list of the files could not be written\n");
  return static_cast<int>(std::max(code, Exit::Refused));
}
