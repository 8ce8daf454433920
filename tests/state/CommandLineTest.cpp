#include "state/CommandLine.h"

#include "support/Case.h"

#include <gtest/gtest.h>

namespace trekor::tests {
namespace {

// The vehicle, and all that is not as it is without a switch.
std::string Read(const std::string& line, CommandLineFlags flags = {}, RunFlags run = {}) {
  if (!ReadCommandLine(line, flags, run))
    return "refused";
  std::string all = flags.HardwareName;
  all += run.UserLevel ? " level " + std::to_string(run.UserLevel) : "";
  all += flags.CmdDrive.empty() ? "" : " drive " + flags.CmdDrive;
  all += flags.CmdBValue == 0 ? "" : " B " + std::to_string(flags.CmdBValue).substr(0, 4);
  all += run.Simulator ? " S" : "";
  all += flags.CmdKlv7 ? " KLV7" : "";
  all += flags.FormEditOff ? " F" : "";
  all += flags.CmdX ? " X" : "";
  all += flags.CmdR ? " R" : "";
  EXPECT_EQ(flags.CapColumn + flags.TipColumn + flags.HelpColumn,
            "Cap" + flags.Language + "Tip" + flags.Language + "Help" + flags.Language);
  return all + (flags.Language == "English" ? "" : " " + flags.Language);
}

// A line of one word loses its last character, two switches are coupled, one is barred by level, a number is read only
// before a blank, and a language is all the rest.
TEST(CommandLineTest, SwitchesAreFoundAnywhereWhateverTheirCase) {
  for (const Case c : {" -> refused", "    -> refused", "  7707-034 /US  -> 7707-034", "ABC -> AB", "VÅ -> V", "A -> ",
                       "X /UD /US -> X level 9", "X /ua /uo -> X level 1", "X /uo -> X level -1", "X /US /D: -> X",
                       "X /d:e /b:12 /s/x /f /r -> X drive e B 12.0 S F X R"})
    EXPECT_EQ(Read(c.given), c.wanted) << c.line;
}

TEST(CommandLineTest, SomeSwitchesHaveConditions) {
  for (const Case c :
       {"X /KLV7 -> X KLV7 R", "X /F /UA -> X level 1", "X /F /UO -> X level -1 F", "X /B:12 -> X", "X /B: /S -> X S",
        "X /B:12.5 /S -> X B 12.5 S", "X /L:Danish /S -> X S Danish /S", "X /L:Dansk  -> X Dansk", "X /L:  -> X"})
    EXPECT_EQ(Read(c.given), c.wanted) << c.line;
}

TEST(CommandLineTest, EachReadingStartsFromItsDefaults) {
  CommandLineFlags flags;
  RunFlags run;
  ReadCommandLine("X /UD /S /R /D:E /L:Dansk", flags, run);
  EXPECT_EQ(Read("XY", flags, run), "X");
}

} // namespace
} // namespace trekor::tests
