#include "options/Sections.h"

#include "Templates.h"

namespace trekor::tests {
namespace {

TEST(Heading, ComesBackFromItsName) {
  for (int code = 1; code <= 4; ++code)
    EXPECT_EQ(HeadingCode(HeadingName(code)), code);
  EXPECT_EQ(HeadingName(0) + HeadingName(5) + HeadingName(-1), "");
}

class Network : public WithTemplates {
protected:
  Form mainForm{"Measurements"};
  TextDatabase texts{state, machine.platform};
  SocketProp socket{state, machine.platform, texts, mainForm};
  Sections sections{state, machine.platform, socket};
};

TEST_F(Network, IsReopenedElsewhereAndSurvivesAMissingFile) {
  Ship("Sections");
  ASSERT_TRUE(sections.LoadSections());
  EXPECT_EQ(state.facility.SectionsPath, "C:\\Veldmark\\Parcels\\MDB\\Sections.mdb");
  state.facility.SectionsPath = "C:\\Nowhere\\Sections.mdb";
  sections.ReopenSections();
  // The first file is free again: an exclusive opening gets it.
  EXPECT_TRUE(
      Database::Open(machine.drives.NativePath("C:\\Veldmark\\Parcels\\MDB\\Sections.mdb"), OpenMode::Exclusive));
  sections.CloseSections();
  EXPECT_FALSE(machine.drives.FileExists("C:\\Nowhere\\Sections.mdb"));
}

TEST_F(Network, TellsTheLinkWhatTheOperatorSets) {
  machine.socket.state = SocketState::Connected;
  state.run.FromLink = true; // the form may stand open because the link asked for a start; its news still goes out
  sections.SetFacilityName("E 45");
  sections.SetSectionName("Ring 3");
  sections.SetSectionStart("10.000");
  sections.SetSectionEnd("");
  EXPECT_EQ(machine.socket.TakeLines(), (std::vector<std::string>{"FACILITY NAME E 45", "SECTION NAME Ring 3",
                                                                  "SECTION START 10.000", "SECTION END "}));
  EXPECT_EQ(state.facility.FacilityName + state.facility.SectionName + state.facility.SectionStart, "E 45Ring 310.000");
}

} // namespace
} // namespace trekor::tests
