#include "texts/MessageCatalogue.h"

#include "TextsFixture.h"
#include "values/KeyCodes.h"

namespace trekor::tests {
namespace {

class MessageTest : public TextsTest {
protected:
  MessageTest() {
    Make(TextTable() + FormTable("Message"));
    MakeDatabase(fakes.drives, "C:\\Messages.mdb",
                 "CREATE TABLE Messages (ID INTEGER, English TEXT, Danish TEXT);"
                 "CREATE UNIQUE INDEX Messages_ID ON Messages(ID);"
                 "INSERT INTO Messages VALUES (401, 'No file', 'Ingen fil'), (402, 'English alone', NULL),"
                 "(403, 'English', '   '), (404, NULL, NULL);");
    messages.Open(Database::Open(fakes.drives.NativePath("C:\\Messages.mdb"), OpenMode::Shared));
  }
  // What the operator saw, "" when nothing, and whether his act closed it.
  std::string Show(
      int number, const std::function<void()>& act = [] {}) {
    std::string seen;
    fakes.shell.scripts["Message"] = [&](Form& shown) {
      seen = messages.form.MessageNo.Caption() + " " + messages.form.MessageText.Text();
      act();
      seen += shown.Shown ? "" : ", closed";
      fakes.shell.Hide(shown);
    };
    messages.ShowMessage(number);
    return seen;
  }
  MessageCatalogue messages{state, fakes.platform, texts};
};

TEST_F(MessageTest, ANumberShowsItsTextOrNothing) {
  EXPECT_EQ(Show(401), "401 No file");
  EXPECT_EQ(messages.form.Caption(), "Trekor Message");
  EXPECT_EQ(Show(999), "");
  EXPECT_EQ(Show(404), "");
  Speak("Danish");
  EXPECT_EQ(Show(401), "401 Ingen fil");
  EXPECT_EQ(Show(402), "402 English alone");
  EXPECT_EQ(Show(403), "") << "a blank translation stays silent";
  Speak("Russian");
  EXPECT_EQ(Show(401), "401 No file") << "a language without a column";
  messages.Close();
  EXPECT_EQ(Show(401), "");
}

TEST_F(MessageTest, AMessageTakesThePlaceOfTheOneThatIsUp) {
  std::string seen;
  fakes.shell.scripts["Message"] = [&](Form& shown) {
    messages.ShowMessage(402);
    seen = messages.form.MessageNo.Caption() + " " + messages.form.MessageText.Text();
    fakes.shell.Hide(shown);
  };
  messages.ShowMessage(401);
  EXPECT_EQ(seen, "402 English alone");
}

TEST_F(MessageTest, FourKeysAndAClickCloseTheForm) {
  const std::string closed = "401 No file, closed";
  for (int key : {keys::Space, keys::F4, keys::Esc, keys::Enter}) {
    EXPECT_EQ(Show(401, [&] { EXPECT_TRUE(messages.form.OnKeyDown(key, 0)); }), closed) << key;
    EXPECT_EQ(Show(401, [&] { EXPECT_TRUE(messages.form.MessageText.Press(key, 0)); }), closed) << key;
  }
  EXPECT_EQ(Show(401, [&] { EXPECT_FALSE(messages.form.OnKeyDown('A', 0)); }), "401 No file");
  EXPECT_EQ(Show(401, [&] { messages.form.MessageText.Click(); }), closed);
  EXPECT_EQ(Show(401, [&] { messages.form.MessageNo.Click(); }), closed);
  EXPECT_EQ(Show(401, [&] { EXPECT_FALSE(messages.form.OnQueryUnload()); }), closed);
  EXPECT_TRUE(messages.form.MessageText.ReadOnly);
  state.run.UserLevel = levels::Administrator;
  messages.form.ActiveControl = &messages.form.MessageText;
  EXPECT_TRUE(messages.form.OnKeyDown('D', 3)) << "what every form shares";
}

TEST_F(MessageTest, TheTextFollowsTheSizeAndTheLookIsKept) {
  messages.LoadForm();
  messages.form.Move(0, 0, 5000, 3000);
  messages.form.OnResize();
  const TextBox& box = messages.form.MessageText;
  EXPECT_EQ(box.Width, 4860);
  EXPECT_EQ(box.Height, 2860);
  for (const Control* c : messages.form.Controls()) {
    EXPECT_LE(c->Left + c->Width, 5000) << c->Name();
    EXPECT_LE(c->Top + c->Height, 3000) << c->Name();
  }
  messages.UnloadForm();
  EXPECT_EQ(Ask("SELECT Width, Height FROM Message WHERE Name = 'MessageText'"), "4860,2860\n");
}

} // namespace
} // namespace trekor::tests
