#include "state/CommandLine.h"

#include <gtest/gtest.h>

namespace trekor::tests {
namespace {

struct Line {
  explicit Line(std::string_view text) : ok(ReadCommandLine(text, flags, run)) {}
  CommandLineFlags flags;
  RunFlags run;
  bool ok;
};

TEST(CommandLine, RefusesABlankLine) {
  EXPECT_FALSE(Line("").ok);
  EXPECT_FALSE(Line("   ").ok);
}

TEST(CommandLine, BeginsWithTheVehicle) {
  EXPECT_EQ(Line("  7707-034 /US ").flags.HardwareName, "7707-034");
  EXPECT_EQ(Line("ABC").flags.HardwareName, "AB") << "one word loses its last character";
  EXPECT_EQ(Line("VÅ").flags.HardwareName, "V");
  EXPECT_EQ(Line("A").flags.HardwareName, "");
}

TEST(CommandLine, TakesTheLastUserLevelOfItsOwnOrder) {
  EXPECT_EQ(Line("X").run.UserLevel, 0);
  EXPECT_EQ(Line("X /UD /US").run.UserLevel, 9);
  EXPECT_EQ(Line("X /ua /uo").run.UserLevel, 1);
  EXPECT_EQ(Line("X /uo").run.UserLevel, -1);
}

TEST(CommandLine, FindsSwitchesAnywhereWhateverTheirCase) {
  const Line all("X /d:e /b:12 /s/x /f /r");
  EXPECT_EQ(all.flags.CmdDrive, "e");
  EXPECT_EQ(all.flags.CmdBValue, 12);
  EXPECT_TRUE(all.run.Simulator && all.flags.CmdX && all.flags.FormEditOff && all.flags.CmdR);
  EXPECT_FALSE(all.flags.CmdKlv7);
  const Line none("X /US /D:");
  EXPECT_FALSE(none.run.Simulator || none.flags.CmdX || none.flags.FormEditOff || none.flags.CmdR);
  EXPECT_EQ(none.flags.CmdDrive, "");
}

TEST(CommandLine, CouplesTwoSwitchesAndBarsOneByLevel) {
  const Line coupled("X /KLV7");
  EXPECT_TRUE(coupled.flags.CmdKlv7 && coupled.flags.CmdR);
  EXPECT_FALSE(Line("X /F /UA").flags.FormEditOff);
  EXPECT_TRUE(Line("X /F /UO").flags.FormEditOff);
}

TEST(CommandLine, ReadsANumberOnlyBeforeABlank) {
  EXPECT_EQ(Line("X /B:12").flags.CmdBValue, 0);
  EXPECT_EQ(Line("X /B: /S").flags.CmdBValue, 0);
  EXPECT_EQ(Line("X /B:12.5 /S").flags.CmdBValue, 12.5F);
}

TEST(CommandLine, TakesAllTheRestAsTheLanguage) {
  const Line danish("X /L:Danish /S");
  EXPECT_EQ(danish.flags.Language, "Danish /S");
  EXPECT_TRUE(danish.run.Simulator);
  EXPECT_EQ(Line("X /L:Dansk ").flags.HelpColumn, "HelpDansk");
  EXPECT_EQ(Line("X /L: ").flags.CapColumn, "CapEnglish");
}

TEST(CommandLine, StartsFromItsDefaultsEachTime) {
  Line again("X /UD /S /R /D:E /L:Dansk");
  again.ok = ReadCommandLine("X", again.flags, again.run);
  EXPECT_EQ(again.run.UserLevel, 0);
  EXPECT_FALSE(again.run.Simulator || again.flags.CmdR);
  EXPECT_EQ(again.flags.CmdDrive + again.flags.TipColumn, "TipEnglish");
}

} // namespace
} // namespace trekor::tests
