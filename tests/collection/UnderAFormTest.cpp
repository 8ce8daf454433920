// What the link does while a form of the operator is up, and what the form does then.
#include "collection/RunFixture.h"

namespace trekor::tests {

class UnderAForm : public RunFixture {
protected:
  void SetUp() override {
    fakes.drives.currentFolder = Folder;
    Load();
  }
  // What happens while the new-file form is up; a form that is left untouched closes at the end.
  void WhileAsked(const std::function<void()>& story) {
    fakes.shell.scripts["FileNewDialog2"] = [story](Form&) { story(); };
    form.mnuNew.Click();
  }
};

// A box that nobody has typed in must not bring back the road of before.
TEST_F(UnderAForm, TheRoadThatTheLinkTellsIsTakenUpByTheForm) {
  Link("FACILITY NAME Ring Road");
  Link("SECTION NAME North");
  WhileAsked([this] {
    fileNew.form.Texts1.Type("South");
    Link("FACILITY NAME Road 21");
    Link("SECTION NAME West");
    Link("SECTION START Bridge");
    fileNew.form.BlinkTimer.Fire();
    EXPECT_EQ(fileNew.form.Texts0.Text(), "Road 21");
    Link("SECTION END Exit 12");
    fileNew.form.Texts2.Type("ROAD09");
    fileNew.form.OnKeyDown(keys::Enter, 0);
  });
  EXPECT_EQ(Query("SELECT FacilityName, SectionName, Start, End FROM Sessions"), Texts{"Road 21 South Bridge Exit 12"});
  WhileAsked([this] {
    EXPECT_EQ(fileNew.form.Texts0.Text() + fileNew.form.Texts1.Text(), "Road 21South") << "the next file goes on there";
  });
}

} // namespace trekor::tests
