#include "collection/Asking.h"

#include "values/NumberText.h"
#include "values/Text.h"

namespace trekor {

namespace {
constexpr int LongestText = 255;
constexpr const char* Gap = "  \u00B7  "; // between the parts of a remark
} // namespace

Asking::Asking(Platform& platform, TextDatabase& texts, const TestSetup& setup, Station& keyStation, NumLock& numLock)
    : NumericPrompt("NumericPrompt", platform, texts), TextPrompt("TextPrompt", platform, texts), texts(texts),
      setup(setup), KeyStation(keyStation), numLock(numLock) {}

bool Asking::Ask_EventStation(int obs) {
  const auto name = setup.Observations(obs).ObsNameDisp(), row = KeyStation.Text();
  const auto answer =
      Ask(NumericPrompt, {.title = WordEnter() + " " + name + " Station",
                          .remark = name + Gap + "Station in " + KeyStation.ShownUnit() + Gap + "the row is at " + row,
                          .first = row});
  if (Trim(answer).empty())
    return false;
  KeyStation.SetText(answer);
  return true;
}

std::string Asking::Ask_Number(int obs) {
  const auto& o = setup.Observations(obs);
  const auto limit = [](double stored) { return SingleToText(static_cast<float>(stored)); };
  return Trim(Ask(NumericPrompt, OfObservation(obs, limit(o.Min()) + " to " + limit(o.Max()) + " " + o.DispText())));
}

std::string Asking::Ask_Text(int obs) {
  Question question = OfObservation(obs, std::to_string(LongestText) + " characters at most");
  question.maxLength = LongestText;
  return Trim(Ask(TextPrompt, question));
}

std::string Asking::AskBoxNumber(const std::string& caption, const std::string& text) {
  Question question = OfBox(caption, text);
  question.remark += " in " + KeyStation.ShownUnit();
  return Ask(NumericPrompt, question);
}

std::string Asking::AskBoxText(const std::string& caption, const std::string& text) {
  return Ask(TextPrompt, OfBox(caption, text));
}

void Asking::TakeNumber(ClassObservation& observation, const std::string& answer) {
  if (observation.DataTypeID != DataType::Integer)
    return observation.SetDefault(SingleToText(TextToSingle(answer)));
  const auto whole = IsNumeric(answer) ? ToInteger16(TextToDouble(answer)) : std::nullopt;
  if (whole)
    observation.SetDefault(std::int32_t{*whole});
}

std::string Asking::Ask(Prompt& prompt, const Question& question) {
  numLock.FreezeNumLock();
  return prompt.Ask(question);
}

// The station of the key, or of the row that is edited.
Question Asking::OfObservation(int obs, const std::string& limits) const {
  const auto& o = setup.Observations(obs);
  return {.title = WordEnter() + " " + o.ObsNameDisp() + " " + o.ParNameDisp(),
          .remark =
              o.ObsNameDisp() + Gap + Trim(limits) + Gap + "at " + KeyStation.Text() + " " + KeyStation.ShownUnit(),
          .first = o.DefaultText()};
}

Question Asking::OfBox(const std::string& caption, const std::string& text) const {
  return {.title = WordEnter() + "  " + caption, .remark = caption, .first = text};
}

std::string Asking::WordEnter() const {
  return texts.GetText("W_Enter");
}

} // namespace trekor
