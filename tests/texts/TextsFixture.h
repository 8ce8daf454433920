// A texts database with one form in it, and the verbs of a test upon it.
#pragma once

#include "forms/Form.h"
#include "forms/Grid.h"
#include "support/TextFixture.h"

#include <gtest/gtest.h>

namespace trekor::tests {

struct TrialForm : Form {
  TrialForm() : Form("Trial") {
    cboTyped.DropDownList = false;
    fxgList.SetCols(3);
    fxgList.SetRows(2);
    TabStrip1.Add("Info", "");
    TabStrip1.Add("Keyboard", "");
  }
  // What it shows, and where, in one text.
  std::string Look() const {
    std::string all =
        Caption() + " " + std::to_string(Left) + "," + std::to_string(Width) + "," + std::to_string(Height);
    const auto place = [&](const Control& c, const std::string& words) {
      all +=
          "|" + words + (c.Visible() ? "" : " hidden") + " " + std::to_string(c.Left) + "," + std::to_string(c.Height);
    };
    place(lblInfo, lblInfo.Caption() + " " + lblInfo.ToolTipText());
    place(Texts7, Texts7.Text());
    place(chkFreeze, chkFreeze.Caption() + " " + std::to_string(chkFreeze.Value()));
    place(cboUnits, cboUnits.Text() + " of " + std::to_string(cboUnits.ListCount()));
    place(cboTyped, cboTyped.Text());
    std::string cells = fxgList.Text(0, 0) + " " + fxgList.Text(0, 1);
    for (int c = 0; c < 3; ++c)
      cells += " " + std::to_string(fxgList.ColWidth(c));
    place(fxgList, cells);
    place(TabStrip1, TabStrip1.Tabs(1).Caption + " " + std::to_string(TabStrip1.Selected()));
    place(sbrState, sbrState.SimpleText());
    all += "|" + mnuFile.Caption() + (mnuFile.Checked() ? " ticked " : " ") + std::to_string(mnuFile.Width);
    return all + (Options0.Value() ? "|0" : "|") + (Options1.Value() ? "|1" : "|");
  }
  Label lblInfo{*this, "lblInfo"};
  TextBox Texts7{*this, "Texts", 7};
  CheckBox chkFreeze{*this, "chkFreeze"};
  Frame Frames0{*this, "Frames", 0}, Frames1{*this, "Frames", 1};
  OptionButton Options0{*this, "Options", 0}, Options1{*this, "Options", 1};
  ComboBox cboUnits{*this, "cboUnits"}, cboTyped{*this, "cboTyped"};
  Grid fxgList{*this, "fxgList"};
  TabStrip TabStrip1{*this, "TabStrip1"};
  StatusBar sbrState{*this, "sbrState"};
  Menu mnuFile{*this, "mnuFile"};
  Timer IdleTimer{*this, "IdleTimer"};
};

class TextsTest : public testing::Test {
protected:
  void Make(const std::string& sql) {
    MakeTextDatabase(fakes, state.folders, sql);
    ASSERT_TRUE(texts.Open());
  }
  // A form's table with rows given as (Name, Left, Top, Width, Height, Value, Visible, Tag, Cap, Tip).
  void MakeForm(const std::string& rows, const std::string& moreColumns = "") {
    std::string sql = TextTable() + FormTable("Trial", moreColumns);
    if (!rows.empty())
      sql += "INSERT INTO Trial (Name, \"Left\", Top, Width, Height, Value, Visible, Tag, CapEnglish, TipEnglish) "
             "VALUES " +
             rows + ";";
    Make(sql);
  }
  std::string WorkingFile() { return state.folders.MdbFolder + "\\Trekor.mdb"; }
  void Execute(const std::string& sql) { ASSERT_TRUE(OpenFile()->Execute(sql)) << sql; }
  std::string Ask(const std::string& sql) {
    const auto file = OpenFile();
    const auto rs = file->OpenQuery(sql);
    if (!rs)
      return "wrong query: " + file->LastError();
    std::string all;
    for (rs->MoveFirst(); !rs->Eof(); rs->MoveNext()) {
      for (int i = 0; i < rs->FieldCount(); ++i)
        all += (i > 0 ? "," : "") + (rs->Get(i).IsNull() ? std::string("null") : rs->Get(i).Text());
      all += "\n";
    }
    return all;
  }
  std::unique_ptr<Database> OpenFile() {
    return Database::Open(fakes.drives.NativePath(WorkingFile()), OpenMode::Shared);
  }
  std::string FileBytes() { return fakes.drives.Read(WorkingFile()); }
  void Speak(const std::string& language) {
    state.command.Language = language;
    state.command.CapColumn = "Cap" + language;
    state.command.TipColumn = "Tip" + language;
    state.command.HelpColumn = "Help" + language;
  }

  FakePlatform fakes;
  ProgramState state;
  TextDatabase texts{state, fakes.platform};
  TrialForm form;
};

} // namespace trekor::tests
