#include "collection/Asking.h"

#include "values/NumberText.h"
#include "values/Text.h"

namespace trekor {

namespace {
constexpr int LongestText = 255;
constexpr int NoLimit = 0;
} // namespace

TextBox& TextsBox(MeasurementsForm& form, int index) {
  return index == 6 ? form.Texts6 : index == 7 ? form.Texts7 : form.Texts8;
}

Asking::Asking(RunContext& context)
    : NumericPrompt("NumericPrompt", context.rooms.platform, context.rooms.texts),
      TextPrompt("TextPrompt", context.rooms.platform, context.rooms.texts), ctx(context) {}

bool Asking::Ask_EventStation(int obs) {
  const auto title = WordEnter() + " " + ctx.rooms.setup.Observations(obs).ObsNameDisp() + " Station";
  const auto answer = Ask(NumericPrompt, title, ctx.Position().KeyStation.Text(), NoLimit);
  if (Trim(answer).empty())
    return false;
  ctx.Position().KeyStation.SetText(answer);
  return true;
}

std::string Asking::Ask_Number(int obs) {
  return Trim(Ask(NumericPrompt, Title(obs), ctx.rooms.setup.Observations(obs).DefaultText(), NoLimit));
}

std::string Asking::Ask_Text(int obs) {
  return Trim(Ask(TextPrompt, Title(obs), ctx.rooms.setup.Observations(obs).DefaultText(), LongestText));
}

void Asking::TakeNumber(ClassObservation& observation, const std::string& answer) {
  if (observation.DataTypeID != DataType::Integer)
    return observation.SetDefault(SingleToText(TextToSingle(answer)));
  const auto whole = IsNumeric(answer) ? ToInteger16(TextToDouble(answer)) : std::nullopt;
  if (whole)
    observation.SetDefault(std::int32_t{*whole});
}

void Asking::EnterHugeNumber(int index) {
  TextBox& box = TextsBox(ctx.form, index);
  const auto answer = Ask(NumericPrompt, WordEnter() + "  " + LabelCaption(index), box.Text(), NoLimit);
  if (Trim(answer).empty() || ctx.fields.ending)
    return;
  box.SetText(answer);
  if (index != 6)
    return;
  ctx.Position().DmiStation.SetText(answer);
  box.SetText(ctx.Position().DmiStation.Text());
  Set_DMI(ctx.State(), ctx.rooms.socket);
}

void Asking::EnterHugeText(int index) {
  TextBox& box = TextsBox(ctx.form, index);
  const auto answer = Ask(TextPrompt, WordEnter() + "  " + LabelCaption(index), box.Text(), NoLimit);
  if (!Trim(answer).empty() && !ctx.fields.ending)
    box.SetText(answer);
}

std::string Asking::Ask(Prompt& prompt, const std::string& title, const std::string& first, int maxLength) {
  FreezeNumLock();
  return prompt.Ask(title, first, maxLength);
}

std::string Asking::Title(int obs) const {
  const auto& o = ctx.rooms.setup.Observations(obs);
  return WordEnter() + " " + o.ObsNameDisp() + " " + o.ParNameDisp();
}

std::string Asking::WordEnter() const {
  return ctx.rooms.texts.GetText("W_Enter");
}

std::string Asking::LabelCaption(int index) const {
  const auto& f = ctx.form;
  return (index == 6 ? f.labels6 : index == 7 ? f.labels7 : f.labels8).Caption();
}

void Asking::FreezeNumLock() {
  if (NumLockFrozen())
    Set_NumLock(true);
}

// The state is read first: a press is a real key event, which comes back to the form.
void Asking::Set_NumLock(bool on) {
  auto& keyboard = ctx.rooms.platform.keyboard;
  if (keyboard.NumLock() != on)
    keyboard.PressNumLock();
}

} // namespace trekor
