// The options form with an operator who acts on it.
#include "options/Options.h"

#include "options/OptionsFixture.h"
#include "values/KeyCodes.h"

namespace trekor::tests {
namespace {

class OptionsFormTest : public OptionsTest {
protected:
  OptionsFormTest() {
    EXPECT_TRUE(options.LoadSoftwareDatabases());
    state.people.OperatorName = "Jane Doe";
  }
  // What the operator does while the form is up.
  void Show(const std::function<void()>& acts) {
    machine.shell.scripts["Options"] = [&](Form&) { acts(); };
    dialog.ShowDialog();
  }
  // The names of the controls that are marked as not yet applied.
  std::string Bold() {
    std::string names;
    for (const Control* c : form.Controls())
      if (c->FontOf().Bold)
        names += (names.empty() ? "" : " ") + c->FullName();
    return names;
  }
  std::string Grey() {
    std::string names;
    for (const Control* c : form.Controls())
      if (!c->Enabled())
        names += (names.empty() ? "" : " ") + c->FullName();
    return names;
  }
  int Rows() { return static_cast<int>(SplitText(RowsOf(*Open(Software), "Options"), '\n').size()) - 1; }

  Options dialog{state, machine.platform, texts, options};
  OptionsForm& form = dialog.form;
};

const std::string FileUnits = "FileOptionMetric FileOptionUS Combos(1)";
const std::string Feedback = "FeedbackFrameChild optDataColVoice optDataColTones";

// Each state comes back as it was, when anything at all is applied.
TEST_F(OptionsFormTest, ShowsWhatIsInForceAndChangesNothingElse) {
  const std::pair<OptionState, std::array<int, 2>> states[] = {
      {{{}, "", "US", "Metric", -1, 2, true, true, false, true, false, true, false, true, true, 7}, {4, 5}},
      {{{}, "", "Metric", "US", 1, 0, false, true, true, false, true, false, true, false, false, 0}, {0, 3}},
      {{{}, "", "Metric", "Metric", 1, 1, true, true, true, true, true, true, true, true, false, 0}, {5, 7}}};
  machine.clock.start = {2031, 2, 3, 4, 5, 6};
  for (const auto& [set, codes] : states) {
    state.options = set;
    state.units.UnitsUS = set.OptionUnits == "US";
    state.units.FileUnitsUS = set.OptionFileUnits == "US";
    state.units.StationUnit = codes[0];
    state.units.FileStationUnit = codes[1]; // 7 is the link's and has no entry
    state.options.OptionsUser = "Jane Doe";
    state.options.OptionsDate = machine.clock.Now();
    const std::string before = All(state);
    Show([&, unit = codes[1]] {
      EXPECT_EQ(Bold() + "/" + (form.CmdApply.Enabled() ? "apply" : ""), "/");
      EXPECT_EQ(form.Combos1.ListIndex(), unit == 7 ? -1 : unit);
      form.ErrorTextCheck.Click();
      form.ErrorTextCheck.Click();
      form.CmdApply.Click();
    });
    EXPECT_EQ(All(state), before);
    EXPECT_EQ(state.options.TrayColor, set.TrayColor);
  }
}

TEST_F(OptionsFormTest, MarksWhatIsChangedUntilItIsApplied) {
  const std::pair<std::function<void()>, std::string> changes[] = {
      {[this] { form.OptionUS.Click(); }, "OptionUS"},
      {[this] { form.OptionMetric.Click(); }, ""}, // it is chosen already
      {[this] { form.Combos0.Select(2); }, "Combos(0)"},
      {[this] { form.Combos2.Select(0); }, ""}, // the same entry again
      {[this] { form.FileOptionUS.Click(); }, "FileOptionUS"},
      {[this] { form.OptionLeft.Click(); }, "OptionLeft"},
      {[this] { form.MDBCheck.Click(); }, "MDBCheck"},
      {[this] { form.TKRCheck.Click(); }, "TKRCheck MDBCheck"},
      {[this] { form.ErrorTextCheck.Click(); }, "ErrorTextCheck ErrorVoiceCheck"},
      {[this] { form.WarningVoiceCheck.Click(); }, "WarningVoiceCheck"},
      {[this] { form.AssistanceVoiceCheck.Click(); }, "AssistanceVoiceCheck"},
      {[this] { form.optDataColVoice.Click(); }, "optDataColVoice"}};
  for (const auto& [change, marked] : changes)
    Show([&, &change = change, &marked = marked] {
      change();
      EXPECT_EQ(Bold(), marked);
      EXPECT_EQ(form.CmdApply.Enabled(), !marked.empty()) << marked;
      EXPECT_EQ(state.options.OptionsChanged, !marked.empty()) << marked;
    });
  const std::string before = All(state);
  EXPECT_EQ(Rows(), 1) << "nothing was applied";
  Show([&] {
    EXPECT_FALSE(state.options.OptionsChanged);
    for (const auto& [change, marked] : changes)
      change();
    EXPECT_EQ(All(state), before);
    form.CmdApply.Click();
    EXPECT_EQ(Bold(), "");
    EXPECT_FALSE(form.CmdApply.Enabled());
    EXPECT_TRUE(form.Shown);
  });
  EXPECT_EQ(All(state).substr(0, 26), "Metric US=US 2 0 -1 0 0 20") << All(state);
}

TEST_F(OptionsFormTest, AFileStaysInSomeForm) {
  Show([this] {
    form.MDBCheck.Click();
    EXPECT_EQ(form.MDBCheck.Value(), 0);
    form.TKRCheck.Click();
    EXPECT_EQ(form.MDBCheck.Value(), 2);
    EXPECT_EQ(Grey(), "MDBCheck");
    form.MDBCheck.Click();
    form.CmdApply.Click();
    EXPECT_TRUE(state.options.KeepMdb && !state.options.WriteAscii);
  });
  state.options.KeepMdb = false;
  Show([this] {
    EXPECT_EQ(form.MDBCheck.Value(), 2);
    EXPECT_TRUE(form.MDBCheck.Enabled()) << "at the opening alone";
    form.TKRCheck.Click();
    EXPECT_EQ(form.MDBCheck.Value(), 1);
    form.TKRCheck.Click();
    form.TKRCheck.Click();
    EXPECT_EQ(form.MDBCheck.Value(), 1);
    EXPECT_TRUE(form.MDBCheck.Enabled());
  });
}

TEST_F(OptionsFormTest, WhatIsSpokenNeedsSpokenAssistanceAndADevice) {
  Show([this] {
    EXPECT_EQ(Grey(), "CmdApply");
    form.AssistanceVoiceCheck.Click();
    EXPECT_EQ(Grey(), Feedback);
    form.AssistanceVoiceCheck.Click();
    EXPECT_EQ(Grey(), "");
  });
  machine.sound.devices = 0;
  state.options.AssistanceVoice = false;
  Show([this] {
    EXPECT_EQ(Grey(), "ErrorVoiceCheck WarningVoiceCheck AssistanceVoiceCheck " + Feedback + " CmdApply");
  });
}

TEST_F(OptionsFormTest, EveryApplyAddsARowAndSaysWhoChangedWhat) {
  machine.clock.start = {2031, 2, 3, 4, 5, 6};
  Show([this] {
    EXPECT_EQ(form.LastChangeLabel.Caption(), "Trekor - 2025-01-01");
    form.OptionUS.Click();
    form.CmdApply.Click();
    form.CmdApply.Click(); // grey
    EXPECT_EQ(form.LastChangeLabel.Caption(), "Jane Doe - 2031-02-03");
    machine.clock.Advance(2000);
    form.Combos0.Select(4);
    form.CmdOK.Click();
    EXPECT_FALSE(form.Shown);
  });
  EXPECT_TRUE(state.options.OptionsChanged);
  EXPECT_EQ(RowsOf(*Open(Software), "SELECT ID, Datum, User, Units, StationUnit FROM Options ORDER BY ID DESC"),
            "3|2031-02-03 04:05:08|Jane Doe|US|4\n2|2031-02-03 04:05:06|Jane Doe|US|0\n"
            "1|2025-01-01 00:00:00|Trekor|Metric|0\n");
  options.Close();
  const std::string before = All(state);
  state.options = {};
  state.units = {};
  ASSERT_TRUE(options.LoadSoftwareDatabases());
  EXPECT_EQ(All(state), before) << "the next start shows the state that was applied last";
  state.options.OptionsDate = {};
  Show([this] { EXPECT_EQ(form.LastChangeLabel.Caption(), "") << "nobody"; });
}

// Options that can't be saved are in force all the same, to the end of the day.
TEST_F(OptionsFormTest, AppliesWhatCannotBeStored) {
  const auto lock = Open(Software);
  ASSERT_TRUE(lock->Execute("BEGIN EXCLUSIVE"));
  Show([this] {
    form.OptionUS.Click();
    form.CmdOK.Click();
    EXPECT_FALSE(form.Shown);
  });
  EXPECT_TRUE(state.units.UnitsUS && state.options.OptionsChanged);
}

TEST_F(OptionsFormTest, EachWayOutDoesWhatItSays) {
  enum class Way { Ok, Cancel, Esc, F4, CloseBox };
  enum class Answer { None, Yes, No };
  const struct {
    Way way;
    bool appliedBefore, changed;
    Answer answer;
    int rows;
    bool told;
  } cases[] = {{Way::Ok, false, false, Answer::None, 0, false},    {Way::Ok, false, true, Answer::None, 1, true},
               {Way::Cancel, false, true, Answer::None, 0, false}, {Way::Cancel, true, false, Answer::None, 1, false},
               {Way::Esc, false, false, Answer::None, 0, false},   {Way::Esc, true, false, Answer::None, 1, true},
               {Way::Esc, false, true, Answer::Yes, 1, true},      {Way::Esc, true, true, Answer::No, 1, false},
               {Way::F4, false, true, Answer::Yes, 1, true},       {Way::F4, false, true, Answer::No, 0, false},
               {Way::CloseBox, false, true, Answer::Yes, 1, true}, {Way::CloseBox, false, true, Answer::No, 0, false}};
  const auto leave = [this](Way way) {
    if (way == Way::Ok || way == Way::Cancel)
      (way == Way::Ok ? form.CmdOK : form.CmdCancel).Click();
    else if (way == Way::CloseBox)
      EXPECT_FALSE(form.OnQueryUnload()); // it hides itself
    else
      EXPECT_TRUE(form.OnKeyDown(way == Way::Esc ? keys::Esc : keys::F4, 0));
  };
  for (const auto& c : cases) {
    const int before = Rows();
    Answer asked = Answer::None;
    machine.shell.scripts["SavePrompt"] = [&](Form& prompt) {
      asked = c.answer;
      dynamic_cast<CommandButton&>(*prompt.Find(c.answer == Answer::Yes ? "CmdYes" : "CmdNo")).Click();
    };
    Show([&] {
      if (c.appliedBefore)
        form.ErrorTextCheck.Click(), form.CmdApply.Click();
      if (c.changed)
        form.WarningTextCheck.Click();
      leave(c.way);
      EXPECT_FALSE(form.Shown);
    });
    const std::string which = "case " + std::to_string(&c - cases);
    EXPECT_EQ(asked, c.answer) << which;
    EXPECT_EQ(Rows() - before, c.rows) << which;
    EXPECT_EQ(state.options.OptionsChanged, c.told) << which;
  }
}

TEST_F(OptionsFormTest, TheUnitsOfAnOpenFileStay) {
  state.options.OptionFileUnits = "us"; // is none of the two, and stays
  state.run.DataFileOpen = true;
  Show([this] {
    EXPECT_EQ(Grey(), FileUnits + " CmdApply");
    form.FileOptionUS.Click();
    form.Combos1.Select(3);
    form.OptionUS.Click();
    form.CmdApply.Click();
    EXPECT_EQ(state.options.OptionUnits + state.options.OptionFileUnits, "USus");
    EXPECT_EQ(state.units.FileStationUnit, 0);
  });
}

TEST_F(OptionsFormTest, AFileThatIsMadeUnderTheFormKeepsItsUnits) {
  Show([this] {
    form.FileOptionUS.Click();
    form.Combos1.Select(3);
    dialog.LockFileUnits(true);
    EXPECT_FALSE(form.CmdApply.Enabled() || state.options.OptionsChanged) << "nothing is left to apply";
    dialog.LockFileUnits(false);
    form.FileOptionUS.Click();
    form.Combos1.Select(3);
    form.OptionUS.Click();
    dialog.LockFileUnits(true);
    EXPECT_EQ(Grey(), FileUnits);
    EXPECT_EQ(Bold(), "OptionUS");
    EXPECT_TRUE(form.FileOptionMetric.Value());
    EXPECT_EQ(form.Combos1.ListIndex(), 0);
    form.CmdApply.Click();
    EXPECT_EQ(state.options.OptionUnits + state.options.OptionFileUnits, "USMetric");
    dialog.LockFileUnits(false); // it has been closed
    form.Combos1.Select(3);
    form.CmdApply.Click();
    EXPECT_EQ(state.units.FileStationUnit, 3);
  });
  dialog.LockFileUnits(true);
  Show([this] { EXPECT_EQ(Grey(), "CmdApply") << "the opening asks whether a file is open"; });
}

TEST_F(OptionsFormTest, TakesUpTheUnitThatTheLinkNames) {
  Show([this] {
    const auto told = [this](int unit) {
      state.units.FileStationUnit = unit;
      dialog.FollowFileUnit();
      return form.Combos1.ListIndex();
    };
    EXPECT_EQ(told(4), 4);
    EXPECT_EQ(told(7), -1);
    EXPECT_EQ(Bold(), "");
    form.OptionLeft.Click();
    form.CmdApply.Click();
    EXPECT_EQ(state.units.FileStationUnit, 7) << "and keeps the one without an entry";
    form.Combos1.Select(2);
    EXPECT_EQ(told(5), 2) << "what the operator has chosen stays";
  });
}

// A click may be on its way when a run takes the form away.
TEST_F(OptionsFormTest, GivesWayWithItsQuestionAndTellsOnlyWhatIsApplied) {
  for (const bool appliedBefore : {false, true}) {
    const std::string before = All(state);
    machine.shell.scripts["SavePrompt"] = [&](Form& prompt) {
      dialog.GiveWay();
      EXPECT_FALSE(prompt.Shown || form.Shown);
      dynamic_cast<CommandButton&>(*prompt.Find("CmdYes")).Click();
    };
    Show([&] {
      if (appliedBefore)
        form.ErrorTextCheck.Click(), form.CmdApply.Click();
      form.OptionUS.Click();
      form.OnKeyDown(keys::Esc, 0);
      for (CommandButton* late : {&form.CmdApply, &form.CmdOK, &form.CmdCancel})
        late->Click();
      machine.shell.scripts["SavePrompt"] = [](Form&) { ADD_FAILURE() << "over the run"; };
      form.OnQueryUnload();
    });
    EXPECT_EQ(state.options.OptionsChanged, appliedBefore);
    EXPECT_EQ(All(state) == before, !appliedBefore);
    EXPECT_FALSE(state.units.UnitsUS);
  }
}

TEST_F(OptionsFormTest, WhatAnAdministratorHasLockedStaysLocked) {
  for (Control* c : std::initializer_list<Control*>{&form.Combos1, &form.MDBCheck, &form.AssistanceVoiceCheck})
    c->SetTag("D");
  form.Combos1.SetEnabled(false);
  Show([this] { EXPECT_EQ(Grey(), "Combos(1) MDBCheck AssistanceVoiceCheck CmdApply"); });
  state.run.UserLevel = levels::Administrator;
  Show([this] { EXPECT_EQ(Grey(), "CmdApply"); });
}

} // namespace
} // namespace trekor::tests
