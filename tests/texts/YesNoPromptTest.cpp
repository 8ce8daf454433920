#include "texts/YesNoPrompt.h"

#include "TextsFixture.h"
#include "values/KeyCodes.h"

namespace trekor::tests {
namespace {

// Deleting and saving hang on the answer: only the button Yes is a yes, whatever the answer was before.
TEST_F(TextsTest, OnlyTheButtonYesIsAYes) {
  Make(TextTable() + FormTable("DeletePrompt"));
  YesNoPrompt prompt("DeletePrompt", fakes.platform, texts, Preset::No);
  YesNoForm& shown = prompt.form;
  const auto ask = [&](const std::function<void()>& act) {
    fakes.shell.scripts["DeletePrompt"] = [&](Form&) {
      EXPECT_EQ(shown.Subject.Caption(), "ROAD09.mdb");
      EXPECT_EQ(shown.ActiveControl, &shown.CmdNo);
      act();
      EXPECT_FALSE(shown.Shown);
    };
    return prompt.Ask("ROAD09.mdb");
  };
  EXPECT_TRUE(ask([&] { shown.CmdYes.Click(); }));
  EXPECT_FALSE(ask([&] { shown.CmdNo.Click(); }));
  EXPECT_FALSE(ask([&] { shown.OnKeyDown(keys::Esc, 0); }));
  EXPECT_FALSE(ask([&] { shown.OnKeyDown(keys::F4, 0); }));
  EXPECT_FALSE(ask([&] { shown.OnQueryUnload(); }));
  EXPECT_FALSE(ask([&] {
    prompt.GiveWay(); // for a file of the link
    shown.CmdYes.Click();
  })) << "a click that was on its way";
  EXPECT_FALSE(shown.OnKeyDown(keys::Enter, 0)) << "Enter is the button's that has the focus";
  YesNoPrompt save("SavePrompt", fakes.platform, texts, Preset::Yes);
  fakes.shell.scripts["SavePrompt"] = [&](Form& up) { EXPECT_EQ(up.ActiveControl, &save.form.CmdYes); };
  EXPECT_FALSE(save.Ask("Options"));
}

} // namespace
} // namespace trekor::tests
