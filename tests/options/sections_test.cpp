#include "options/Sections.h"

#include "Templates.h"

namespace trekor::tests {
namespace {

TEST(Heading, IsItsFirstLetter) {
  struct Case {
    const char* text;
    int code;
  };
  for (const Case& c : {Case{"North", 1}, Case{"south", 2}, Case{"E", 3}, Case{"west 12", 4}, Case{"Q", 0}, Case{"", 0},
                        Case{" N", 0}, Case{"Øst", 0}}) {
    EXPECT_EQ(HeadingCode(c.text), c.code) << c.text;
  }
  for (int code = 1; code <= 4; ++code) {
    EXPECT_EQ(HeadingCode(HeadingName(code)), code);
  }
  EXPECT_EQ(HeadingName(0) + HeadingName(5) + HeadingName(-1), "");
}

class Network : public WithTemplates {
protected:
  Form mainForm{"Measurements"};
  TextDatabase texts{state, machine.platform};
  SocketProp socket{state, machine.platform, texts, mainForm};
  Sections sections{state, machine.platform, socket};
};

TEST_F(Network, NumbersTheFieldsOfItsTable) {
  Ship("Sections");
  ASSERT_TRUE(sections.LoadSections());
  EXPECT_EQ(state.facility.SectionsPath, "C:\\Veldmark\\Parcels\\MDB\\Sections.mdb");
  const auto database = Open(state.facility.SectionsPath);
  const auto table = database->OpenTable("Sections");
  int named = 0;
  for (const std::string& field : Sections::SectionFields()) {
    if (!field.empty()) {
      EXPECT_TRUE(table->HasField(field)) << field;
      ++named;
    }
  }
  EXPECT_EQ(named, 19);
  EXPECT_EQ(Sections::SectionFields()[29], "Heading");
}

TEST_F(Network, IsReopenedElsewhereAndSurvivesAMissingFile) {
  Ship("Sections");
  ASSERT_TRUE(sections.LoadSections());
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
