// Sets the character set that a language needs and a font that has its characters. The size stays.
#pragma once

#include "forms/Control.h"

#include <string>

namespace trekor {

void SetLanguageFont(Font& font, const std::string& language);

} // namespace trekor
