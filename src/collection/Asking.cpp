#include "collection/Asking.h"

#include "values/NumberText.h"
#include "values/Text.h"

namespace trekor {

namespace {
constexpr int LongestText = 255;
constexpr int NoLimit = 0;
} // namespace

Asking::Asking(Platform& platform, TextDatabase& texts, const TestSetup& setup, Station& keyStation, NumLock& numLock)
    : NumericPrompt("NumericPrompt", platform, texts), TextPrompt("TextPrompt", platform, texts), texts(texts),
      setup(setup), KeyStation(keyStation), numLock(numLock) {}

bool Asking::Ask_EventStation(int obs) {
  const auto title = WordEnter() + " " + setup.Observations(obs).ObsNameDisp() + " Station";
  const auto answer = Ask(NumericPrompt, title, KeyStation.Text(), NoLimit);
  if (Trim(answer).empty())
    return false;
  KeyStation.SetText(answer);
  return true;
}

std::string Asking::Ask_Number(int obs) {
  return Trim(Ask(NumericPrompt, Title(obs), setup.Observations(obs).DefaultText(), NoLimit));
}

std::string Asking::Ask_Text(int obs) {
  return Trim(Ask(TextPrompt, Title(obs), setup.Observations(obs).DefaultText(), LongestText));
}

std::string Asking::AskBoxNumber(const std::string& caption, const std::string& text) {
  return Ask(NumericPrompt, WordEnter() + "  " + caption, text, NoLimit);
}

std::string Asking::AskBoxText(const std::string& caption, const std::string& text) {
  return Ask(TextPrompt, WordEnter() + "  " + caption, text, NoLimit);
}

void Asking::TakeNumber(ClassObservation& observation, const std::string& answer) {
  if (observation.DataTypeID != DataType::Integer)
    return observation.SetDefault(SingleToText(TextToSingle(answer)));
  const auto whole = IsNumeric(answer) ? ToInteger16(TextToDouble(answer)) : std::nullopt;
  if (whole)
    observation.SetDefault(std::int32_t{*whole});
}

std::string Asking::Ask(Prompt& prompt, const std::string& title, const std::string& first, int maxLength) {
  numLock.FreezeNumLock();
  return prompt.Ask(title, first, maxLength);
}

std::string Asking::Title(int obs) const {
  const auto& o = setup.Observations(obs);
  return WordEnter() + " " + o.ObsNameDisp() + " " + o.ParNameDisp();
}

std::string Asking::WordEnter() const {
  return texts.GetText("W_Enter");
}

} // namespace trekor
