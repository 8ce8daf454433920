#include "services/cSendKeys.h"

#include "values/KeyCodes.h"
#include "values/NumberText.h"
#include "values/Text.h"

#include <vector>

namespace trekor {

namespace {

constexpr int InvalidText = 5, Overflow = 6, NoSuchKey = 9; // error numbers

KeyError Invalid(const std::string& text) {
  return {InvalidText, "Invalid sendkeys command" + text, ""};
}

int ModifierCode(std::string_view character) {
  return character == "+" ? keys::Shift : character == "~" ? keys::Control : character == "%" ? keys::Alt : 0;
}

std::vector<std::string_view> CharactersOf(std::string_view text) {
  std::vector<std::string_view> characters;
  while (!text.empty()) {
    characters.push_back(text.substr(0, CutText(text, 1).size()));
    text.remove_prefix(characters.back().size());
  }
  return characters;
}

// One text on its way to the keyboard.
class KeyRun {
public:
  KeyRun(cSendKeys& keySender, std::string_view keyText)
      : keys(keySender), text(keyText), characters(CharactersOf(keyText)), length(characters.size()) {}

  KeyError Send() {
    KeyError error;
    while (p <= length && !error.Failed())
      error = Step();
    if (!error.Failed() && !ModifierStack.empty())
      error = Invalid(": more open brackets than close brackets.");
    while (!ModifierStack.empty())
      Release();
    return error;
  }

private:
  std::string_view At(std::size_t position) const { return position <= length ? characters[position - 1] : ""; }

  // "~" is always Control here; as Enter it is known between braces only.
  KeyError Step() {
    if (ModifierCode(At(p)) != 0)
      return Modifier();
    if (At(p) == ")")
      return Close();
    if (At(p) == "{")
      return Braces();
    return keys.KeyPress(At(p++), 1);
  }

  KeyError Modifier() {
    const std::string_view modifier = At(p++);
    keys.KeyDown(ModifierCode(modifier));
    if (At(p) == "(") {
      ModifierStack.push_back(modifier);
      ++p;
    } else {
      keys.KeyUp(ModifierCode(modifier)); // at once: without brackets it does not hold for the next key
    }
    return {};
  }

  KeyError Close() {
    if (ModifierStack.empty())
      return Invalid(": unmatched ) at position " + std::to_string(p));
    Release();
    ++p;
    return {};
  }

  // "{DOWN 3}". The search leaves out the first character of the content, so that "{}}" names the closing brace.
  KeyError Braces() {
    if (p + 2 > length)
      return Invalid("; opening { without content or closing } at position " + std::to_string(p));
    std::size_t close = p + 2;
    while (close <= length && At(close) != "}")
      ++close;
    if (close > length)
      return Invalid("; opening { without closing } at position " + std::to_string(p));
    const auto from = static_cast<std::size_t>(At(p + 1).data() - text.data());
    KeyError error = Named(text.substr(from, static_cast<std::size_t>(At(close).data() - text.data()) - from));
    p = close + 1;
    return error;
  }

  KeyError Named(std::string_view content) {
    const std::size_t blank = content.find(' ');
    if (blank == std::string_view::npos)
      return keys.KeyPress(content, 1);
    const std::string_view count = content.substr(blank + 1);
    if (!IsNumeric(count))
      return Invalid("; key repetitions '" + std::string(count) + "' is invalid near position " + std::to_string(p));
    const auto times = ToInteger32(TextToDouble(count));
    return times ? keys.KeyPress(content.substr(0, blank), *times) : KeyError{Overflow, "Overflow", ""};
  }

  void Release() {
    keys.KeyUp(ModifierCode(ModifierStack.back()));
    ModifierStack.pop_back();
  }

  cSendKeys& keys;
  std::string_view text;
  std::vector<std::string_view> characters;
  std::size_t length, p = 1;
  std::vector<std::string_view> ModifierStack; // held by open brackets, newest last
};

// What stands between braces, in capitals.
std::map<std::string, int, std::less<>> NamedKeys() {
  std::map<std::string, int, std::less<>> names{{"BACKSPACE", keys::Backspace},
                                                {"BS", keys::Backspace},
                                                {"BKSP", keys::Backspace},
                                                {"BREAK", keys::Pause},
                                                {"CAPSLOCK", keys::CapsLock},
                                                {"DELETE", keys::Delete},
                                                {"DEL", keys::Delete},
                                                {"DOWN", keys::Down},
                                                {"END", keys::End},
                                                {"ENTER", keys::Enter},
                                                {"~", keys::Enter},
                                                {"ESC", keys::Esc},
                                                {"HELP", keys::Help},
                                                {"HOME", keys::Home},
                                                {"INSERT", keys::Insert},
                                                {"NUMLOCK", keys::NumLock},
                                                {"PGUP", keys::PageUp},
                                                {"PRTSC", keys::Print},
                                                {"RIGHT", keys::Right},
                                                {"SCROLLLOCK", keys::ScrollLock},
                                                {"TAB", keys::Tab},
                                                {"UP", keys::Up},
                                                {"INS", keys::Insert},
                                                {"LEFT", keys::Left},
                                                {"PGDN", keys::PageDown}};
  for (int i = 1; i <= 16; ++i)
    names.emplace("F" + std::to_string(i), keys::F1 + i - 1);
  return names;
}

} // namespace

cSendKeys::cSendKeys(const Platform& platform)
    : keyboard(platform.keyboard), process(platform.process), KeyNames(NamedKeys()) {}

KeyError cSendKeys::SendKeys(std::string_view text, bool /*wait*/) {
  KeyError error = KeyRun(*this, text).Send();
  if (error.Failed())
    error.source = process.ProgramName() + ".cSendKeys";
  return error;
}

KeyError cSendKeys::KeyPress(std::string_view key, int count) {
  const auto name = KeyNames.find(Upper(key));
  const int code = name != KeyNames.end() ? name->second : KeyCode(key);
  if (code == 0)
    return {NoSuchKey, "Key " + std::string(key) + " could not be interpreted.", process.ProgramName() + ".cSendKeys"};
  for (int i = 0; i < count; ++i) {
    KeyDown(code);
    KeyUp(code);
  }
  return {};
}

int cSendKeys::KeyCode(std::string_view character) {
  const char32_t first = FirstCharacter(character);
  return first == 0 ? 0 : keyboard.ScanKey(first);
}

} // namespace trekor
