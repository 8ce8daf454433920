#include "options/Options.h"

#include "state/DateText.h"
#include "texts/FormTable.h"
#include "values/KeyCodes.h"

#include <algorithm>
#include <array>
#include <utility>

namespace trekor {

namespace {

constexpr int Right = 1, Left = -1; // DrivingSide
constexpr int Unticked = 0, Ticked = 1, Grey = 2;
constexpr std::size_t DateLength = 10; // of "2031-02-03 04:05:06"

struct CheckedOption {
  CheckBox OptionsForm::*check;
  bool OptionState::*option;
};
constexpr std::array<CheckedOption, 8> CheckedOptions = {
    {{&OptionsForm::TKRCheck, &OptionState::WriteAscii},
     {&OptionsForm::MDBCheck, &OptionState::KeepMdb},
     {&OptionsForm::ErrorTextCheck, &OptionState::ErrorText},
     {&OptionsForm::ErrorVoiceCheck, &OptionState::ErrorVoice},
     {&OptionsForm::WarningTextCheck, &OptionState::WarningText},
     {&OptionsForm::WarningVoiceCheck, &OptionState::WarningVoice},
     {&OptionsForm::AssistanceTextCheck, &OptionState::AssistanceText},
     {&OptionsForm::AssistanceVoiceCheck, &OptionState::AssistanceVoice}}};

const char* UnitsText(bool us) {
  return us ? "US" : "Metric";
}

void ShowEither(OptionButton& one, OptionButton& other, bool first) {
  one.SetValue(first);
  other.SetValue(!first);
}

// A code that the list does not have, as the link may set one, shows as no entry.
void ShowCode(ComboBox& list, int code) {
  list.SetListIndex(code >= 0 && code < list.ListCount() ? code : -1);
}

void TakeCode(const ComboBox& list, int& code) {
  if (list.ListIndex() >= 0)
    code = list.ListIndex();
}

void SetBold(Control& control, bool on) {
  Font font = control.FontOf();
  font.Bold = on;
  control.SetFont(font);
}

} // namespace

Options::Options(ProgramState& programState, Platform& seams, TextDatabase& textDatabase, OptionsDatabase& optionRows)
    : SavePrompt("SavePrompt", seams, textDatabase, Preset::Yes), state(programState), platform(seams),
      texts(textDatabase), database(optionRows) {
  Wire();
}

void Options::Wire() {
  form.OnKeyDown = [this](int keyCode, int shift) { return Key(keyCode, shift); };
  form.OnQueryUnload = [this] {
    Leave();
    return false; // hidden only, for the next time
  };
  for (OptionButton* button : {&form.OptionMetric, &form.OptionUS, &form.FileOptionMetric, &form.FileOptionUS,
                               &form.OptionRight, &form.OptionLeft, &form.optDataColVoice, &form.optDataColTones})
    button->OnClick = [this, button] { Mark(*button); };
  for (ComboBox* list : {&form.Combos0, &form.Combos1, &form.Combos2})
    list->OnClick = [this, list, last = -1]() mutable {
      if (std::exchange(last, list->ListIndex()) != list->ListIndex()) // the same entry again is no change
        Mark(*list);
    };
  form.TKRCheck.OnClick = [this] { TKRCheck_Click(); };
  form.MDBCheck.OnClick = [this] { Mark(form.MDBCheck); };
  WireFeedback();
  form.CmdOK.OnClick = [this] { CmdOK_Click(); };
  form.CmdCancel.OnClick = [this] { CmdCancel_Click(); };
  form.CmdApply.OnClick = [this] { CmdApply_Click(); };
}

// A text check marks its voice check too.
void Options::WireFeedback() {
  const std::pair<CheckBox*, CheckBox*> pairs[] = {{&form.ErrorTextCheck, &form.ErrorVoiceCheck},
                                                   {&form.WarningTextCheck, &form.WarningVoiceCheck},
                                                   {&form.AssistanceTextCheck, &form.AssistanceVoiceCheck}};
  for (const auto& [textCheck, voiceCheck] : pairs) {
    textCheck->OnClick = [this, text = textCheck, voice = voiceCheck] {
      Mark(*text);
      Mark(*voice);
    };
    voiceCheck->OnClick = [this, voice = voiceCheck] {
      Mark(*voice);
      EnableFeedback();
    };
  }
}

void Options::ShowDialog() {
  texts.LoadForm(form);
  Fill();
  platform.shell.SetFocus(form.OptionUS.Value() ? form.OptionUS : form.OptionMetric);
  platform.shell.ShowModal(form);
}

void Options::GiveWay() {
  if (!form.Shown)
    return;
  SavePrompt.GiveWay();
  state.options.OptionsChanged = applied;
  platform.shell.Hide(form);
}

void Options::Unload() {
  SavePrompt.Unload();
  texts.UnloadForm(form);
}

// Enter is the button's that has the focus, else of CmdOK.
bool Options::Key(int keyCode, int shift) {
  if (texts.FormKeyDown(form, keyCode, shift))
    return true;
  if (keyCode != keys::Esc && keyCode != keys::F4)
    return false;
  Leave();
  return true;
}

// Not once the form has given way to a run, as the question would take its keys, nor again under the question.
void Options::Leave() {
  if (!form.Shown || SavePrompt.form.Shown)
    return;
  if (!form.CmdApply.Enabled())
    return platform.shell.Hide(form);
  const bool save = SavePrompt.Ask(form.Caption());
  if (save)
    CmdOK_Click();
  else
    CmdCancel_Click();
}

// The buttons do nothing once the form has given way: a click may have been on its way.
void Options::CmdOK_Click() {
  if (!form.Shown)
    return;
  if (form.CmdApply.Enabled())
    CmdApply_Click();
  if (!form.CmdApply.Enabled())
    platform.shell.Hide(form);
}

// What was applied before stays, and neither the main form nor the link is told of it. Kept: control programs go by
// what they were told last.
void Options::CmdCancel_Click() {
  if (!form.Shown)
    return;
  state.options.OptionsChanged = false;
  platform.shell.Hide(form);
}

void Options::CmdApply_Click() {
  if (!form.Shown)
    return;
  state.options.OptionsDate = platform.clock.Now();
  state.options.OptionsUser = state.people.OperatorName;
  TakeUnits();
  TakeFileUnits();
  TakeChecks();
  Unmark();
  applied = true;
  database.SaveOptions();
  ShowLastChange();
}

// A file must stay in some form: without the comma file the data file is kept.
void Options::TKRCheck_Click() {
  Mark(form.TKRCheck);
  const bool written = form.TKRCheck.Value() != Unticked;
  if (!written)
    form.MDBCheck.SetValue(Grey);
  else if (form.MDBCheck.Value() == Grey)
    form.MDBCheck.SetValue(Ticked);
  Enable(form.MDBCheck, written);
}

// ---- from the state to the controls

void Options::Fill() {
  filling = true;
  fileUnitsLocked = state.run.DataFileOpen;
  FillUnits();
  FillFileUnits();
  FillChecks();
  filling = false;
  Unmark();
  EnableFileUnits();
  EnableFeedback();
  for (CheckBox* check : {&form.ErrorVoiceCheck, &form.WarningVoiceCheck, &form.AssistanceVoiceCheck})
    Enable(*check, platform.sound.Devices() > 0);
  ShowLastChange();
  state.options.OptionsChanged = applied = false;
}

void Options::FillUnits() {
  const OptionState& options = state.options;
  ShowEither(form.OptionUS, form.OptionMetric, state.units.UnitsUS);
  ShowCode(form.Combos0, state.units.StationUnit);
  ShowCode(form.Combos2, options.GeographicFormat);
  form.OptionRight.SetValue(options.DrivingSide == Right);
  form.OptionLeft.SetValue(options.DrivingSide == Left);
  ShowEither(form.optDataColVoice, form.optDataColTones, options.DataColVoice);
}

void Options::FillFileUnits() {
  ShowEither(form.FileOptionUS, form.FileOptionMetric, state.units.FileUnitsUS);
  ShowCode(form.Combos1, state.units.FileStationUnit);
}

// The check of the data file is grey, but can be ticked, unlike when the comma file has just been given up.
void Options::FillChecks() {
  for (const CheckedOption& one : CheckedOptions)
    (form.*one.check).SetValue(state.options.*one.option ? Ticked : Unticked);
  if (!state.options.WriteAscii)
    form.MDBCheck.SetValue(Grey);
  Enable(form.MDBCheck, true);
}

void Options::ShowLastChange() {
  const std::string date = DateText(state.options.OptionsDate).substr(0, DateLength);
  form.LastChangeLabel.SetCaption(date.empty() ? "" : state.options.OptionsUser + " - " + date);
}

// What an administrator has locked for ordinary users stays so.
void Options::Enable(Control& control, bool on) {
  const bool free = state.run.UserLevel >= levels::Administrator || !HasFlag(control.Tag(), DisabledForUsers);
  control.SetEnabled(on && free);
}

void Options::EnableFileUnits() {
  for (Control* c : std::initializer_list<Control*>{&form.FileOptionMetric, &form.FileOptionUS, &form.Combos1})
    Enable(*c, !fileUnitsLocked);
}

void Options::EnableFeedback() {
  const bool spoken = form.AssistanceVoiceCheck.Value() != Unticked;
  for (Control* c :
       std::initializer_list<Control*>{&form.optDataColVoice, &form.optDataColTones, &form.FeedbackFrameChild})
    Enable(*c, spoken);
}

void Options::LockFileUnits(bool lock) {
  fileUnitsLocked = lock;
  if (!form.Shown)
    return;
  EnableFileUnits();
  if (!lock)
    return;
  filling = true;
  FillFileUnits();
  filling = false;
  for (Control* c : std::initializer_list<Control*>{&form.FileOptionMetric, &form.FileOptionUS, &form.Combos1})
    SetBold(*c, false);
  if (AnyMarked())
    return;
  form.CmdApply.SetEnabled(false);
  state.options.OptionsChanged = applied;
}

void Options::FollowFileUnit() {
  if (!form.Shown || form.Combos1.FontOf().Bold)
    return;
  filling = true;
  ShowCode(form.Combos1, state.units.FileStationUnit);
  filling = false;
}

// ---- what is not yet applied

void Options::Mark(Control& control) {
  if (filling || !form.Shown)
    return;
  state.options.OptionsChanged = true;
  Enable(form.CmdApply, true);
  SetBold(control, true);
}

bool Options::AnyMarked() const {
  const auto controls = form.Controls();
  return std::any_of(controls.begin(), controls.end(), [](const Control* control) { return control->FontOf().Bold; });
}

void Options::Unmark() {
  for (Control* control : form.Controls())
    SetBold(*control, false);
  form.CmdApply.SetEnabled(false);
}

// ---- from the controls to the state

void Options::TakeUnits() {
  OptionState& options = state.options;
  state.units.UnitsUS = form.OptionUS.Value();
  options.OptionUnits = UnitsText(state.units.UnitsUS);
  TakeCode(form.Combos0, state.units.StationUnit);
  TakeCode(form.Combos2, options.GeographicFormat);
  if (form.OptionRight.Value() || form.OptionLeft.Value())
    options.DrivingSide = form.OptionRight.Value() ? Right : Left;
  options.DataColVoice = form.optDataColVoice.Value();
}

// Those of an open file stay to the letter, also a text that is neither of the two.
void Options::TakeFileUnits() {
  if (fileUnitsLocked)
    return;
  state.units.FileUnitsUS = form.FileOptionUS.Value();
  state.options.OptionFileUnits = UnitsText(state.units.FileUnitsUS);
  TakeCode(form.Combos1, state.units.FileStationUnit);
}

void Options::TakeChecks() {
  for (const CheckedOption& one : CheckedOptions)
    state.options.*one.option = (form.*one.check).Value() != Unticked;
}

} // namespace trekor
