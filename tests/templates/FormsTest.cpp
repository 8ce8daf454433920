// The forms' tables against the forms: every control has its row, and the picture that they make holds together.
#include "templates/Share.h"

#include "collection/MeasurementsForm.h"
#include "collection/Prompt.h"
#include "datafiles/FileDialogs.h"
#include "link/SocketProp.h"
#include "options/OptionsForm.h"
#include "texts/MessageCatalogue.h"
#include "texts/YesNoPrompt.h"

namespace trekor::tests {

struct Box {
  int left = 0, top = 0, width = 0, height = 0;
  bool Overlaps(const Box& o) const {
    return left < o.left + o.width && o.left < left + width && top < o.top + o.height && o.top < top + height;
  }
  bool Holds(const Box& o) const {
    return o.left >= left && o.top >= top && o.left + o.width <= left + width && o.top + o.height <= top + height;
  }
};

struct Row {
  Box box;
  bool placed = false, visible = false;
  std::string caption, help;
};

using Rows = std::map<std::string, Row>;

Rows ReadRows(Database& database, const std::string& form) {
  Rows rows;
  const auto table = database.OpenTable(form);
  if (!table || !table->SetIndex("NameIndex"))
    return rows;
  const auto number = [&](const char* field) { return static_cast<int>(table->Get(field).Integer()); };
  for (table->MoveFirst(); !table->Eof(); table->MoveNext())
    rows[table->Get("Name").Text()] = {{number("Left"), number("Top"), number("Width"), number("Height")},
                                       !table->Get("Left").IsNull() && number("Width") > 0 && number("Height") > 0,
                                       table->Get("Visible").Flag(),
                                       table->Get("CapEnglish").Text(),
                                       table->Get("HelpEnglish").Text()};
  return rows;
}

bool HasPlace(const Control& c) {
  return c.TypeOf() != Kind::Menu && c.TypeOf() != Kind::Timer && c.TypeOf() != Kind::ImageList;
}

class FormTables : public testing::Test {
protected:
  void SetUp() override { ASSERT_TRUE(database); }

  template <class Check> void OnEachForm(Check check) {
    for (const Form* form : Forms) {
      SCOPED_TRACE(form->Name());
      check(*form, ReadRows(*database, form->Name()));
    }
  }

  std::unique_ptr<Database> database = OpenShared("Trekor.vdb");
  MeasurementsForm measurements;
  KeyBoardForm keyBoard;
  KeyPadForm keyPad;
  BarsForm bars;
  PromptForm number{"NumericPrompt"}, text{"TextPrompt"};
  SocketPropForm socket;
  MessageForm message;
  FileNewForm fileNew;
  YesNoForm deletePrompt{"DeletePrompt"}, savePrompt{"SavePrompt"};
  OptionsForm options;
  FileOpenForm fileOpen;
  FileExportForm fileExport;
  FolderNewForm folderNew;
  const std::vector<const Form*> Forms = {&measurements, &keyBoard, &keyPad,   &bars,       &number,
                                          &text,         &socket,   &message,  &fileNew,    &deletePrompt,
                                          &savePrompt,   &options,  &fileOpen, &fileExport, &folderNew};
};

TEST_F(FormTables, ThereIsOneForEachFormAndNoOther) {
  const auto names = database->TableNames();
  std::set<std::string> forms = {"Version", "Text"};
  for (const Form* form : Forms)
    forms.insert(form->Name());
  EXPECT_EQ(std::set(names.begin(), names.end()), forms);
}

TEST_F(FormTables, EveryControlHasItsRowInsideWhatHoldsItAndNoRowNamesAControlThatIsNot) {
  OnEachForm([](const Form& form, const Rows& rows) {
    std::set<std::string> controls = {"Me"}, named;
    for (const auto& [name, row] : rows)
      named.insert(name);
    for (const Control* control : form.Controls()) {
      const std::string name = control->FullName();
      controls.insert(name);
      if (!HasPlace(*control) || !named.contains(name))
        continue;
      const Box& around = rows.at(control->Container ? control->Container->FullName() : "Me").box;
      EXPECT_TRUE(rows.at(name).placed && (Box{0, 0, around.width, around.height}.Holds(rows.at(name).box))) << name;
    }
    EXPECT_EQ(named, controls);
  });
}

// Two controls have others standing on them: a tab strip the frames of its pages, a page of text its number.
TEST_F(FormTables, NoVisibleSiblingsOverlap) {
  OnEachForm([](const Form& form, const Rows& rows) {
    const auto check = [&](const Control& a, const Control& b) {
      const Row &one = rows.at(a.FullName()), &other = rows.at(b.FullName());
      if (a.Container != b.Container || !one.visible || !other.visible || !HasPlace(a) || !HasPlace(b))
        return;
      const bool stands = (a.TypeOf() == Kind::TabStrip && b.TypeOf() == Kind::Frame) ||
                          (a.TypeOf() == Kind::RichTextBox && b.TypeOf() == Kind::Label);
      EXPECT_TRUE(stands ? one.box.Holds(other.box) : !one.box.Overlaps(other.box))
          << a.FullName() << " " << b.FullName();
    };
    const auto& controls = form.Controls();
    for (auto a = controls.begin(); a != controls.end(); ++a)
      for (auto b = a + 1; b != controls.end(); ++b)
        check(**a, **b);
  });
}

TEST_F(FormTables, WhateverCanBePressedSaysWhatItIs) {
  OnEachForm([](const Form& form, const Rows& rows) {
    const std::set pressed{Kind::Menu, Kind::CommandButton, Kind::CheckBox, Kind::OptionButton};
    EXPECT_FALSE(rows.at("Me").caption.empty() || rows.at("Me").help.empty());
    for (const Control* control : form.Controls())
      EXPECT_TRUE(!pressed.contains(control->TypeOf()) || !rows.at(control->FullName()).caption.empty())
          << control->FullName();
  });
}

} // namespace trekor::tests
