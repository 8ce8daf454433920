#include "texts/LanguageFont.h"

namespace trekor {

void SetLanguageFont(Font& font, const std::string& language) {
  if (language == "Korean") {
    font.Charset = 129;
    font.Name = "\uAD74\uB9BC";
  } else if (language == "Chinese") {
    font.Charset = 134;
    font.Name = "\u5B8B\u4F53";
  } else if (language == "Russian") {
    font.Charset = 204; // the form's own fonts have the letters
  } else {
    font.Charset = 1;
    font.Name.clear();
  }
}

} // namespace trekor
