// The line is searched, not split into words: a switch counts wherever its letters stand, inside another argument too.
// Kept: command lines in the field rely on it.
#include "state/CommandLine.h"

#include "values/NumberText.h"
#include "values/Text.h"

#include <algorithm>
#include <string>

namespace trekor {

namespace {

std::size_t FindSwitch(std::string_view line, std::string_view name) {
  const auto same = [](char a, char b) { return LowerLetter(a) == LowerLetter(b); };
  const auto at = std::search(line.begin(), line.end(), name.begin(), name.end(), same);
  return at == line.end() ? std::string_view::npos : static_cast<std::size_t>(at - line.begin());
}

bool HasSwitch(std::string_view line, std::string_view name) {
  return FindSwitch(line, name) != std::string_view::npos;
}

// What stands behind a switch, to the end of the line; "" without the switch.
std::string_view Behind(std::string_view line, std::string_view name) {
  const std::size_t at = FindSwitch(line, name);
  return at == std::string_view::npos ? std::string_view() : line.substr(at + name.size());
}

// A line of one word loses its last character. Kept: control programs always send more than one word.
std::string FirstWord(std::string_view line) {
  const std::size_t blank = line.find(' ');
  return blank == std::string_view::npos ? CutText(line, CharCount(line) - 1) : std::string(line.substr(0, blank));
}

// The last one that is present wins.
void ReadUserLevel(std::string_view line, RunFlags& run) {
  struct Level {
    const char* name;
    int level;
  };
  for (const Level& l : {Level{"/UO", levels::Operator}, Level{"/US", levels::User},
                         Level{"/UA", levels::Administrator}, Level{"/UD", levels::Developer}})
    if (HasSwitch(line, l.name))
      run.UserLevel = l.level;
}

// The number counts only with a blank behind it.
void ReadBValue(std::string_view line, CommandLineFlags& flags) {
  const std::string_view rest = Behind(line, "/B:");
  const std::size_t blank = rest.find(' ');
  if (blank != std::string_view::npos && blank > 0)
    flags.CmdBValue = TextToSingle(rest.substr(0, blank));
}

// All the rest of the line, blanks and other switches included.
void ReadLanguage(std::string_view line, CommandLineFlags& flags) {
  flags.Language = Behind(line, "/L:");
  if (flags.Language.empty())
    flags.Language = "English";
}

void SetDefaults(CommandLineFlags& flags, RunFlags& run) {
  flags.Language = "English";
  flags.FormEditOff = false;
  flags.CmdDrive.clear();
  flags.CmdR = false;
  run.UserLevel = levels::User;
  run.Simulator = false;
}

} // namespace

// 7707-034 /UO /D:E /B:12 /S /KLV7 /F /X /R /L:Danish
bool ReadCommandLine(std::string_view whole, CommandLineFlags& flags, RunFlags& run) {
  SetDefaults(flags, run);
  const std::string_view line = TrimView(whole);
  if (line.empty())
    return false;
  flags.HardwareName = FirstWord(line);
  ReadUserLevel(line, run);
  flags.CmdDrive = CutText(Behind(line, "/D:"), 1);
  ReadBValue(line, flags);
  run.Simulator = HasSwitch(line, "/S");
  flags.CmdKlv7 = HasSwitch(line, "/KLV7");
  flags.FormEditOff = HasSwitch(line, "/F") && run.UserLevel < levels::Administrator;
  flags.CmdX = HasSwitch(line, "/X");
  flags.CmdR = flags.CmdKlv7 || HasSwitch(line, "/R"); // the one switch brings the other with it
  ReadLanguage(line, flags);
  flags.CapColumn = "Cap" + flags.Language;
  flags.TipColumn = "Tip" + flags.Language;
  flags.HelpColumn = "Help" + flags.Language;
  return true;
}

} // namespace trekor
