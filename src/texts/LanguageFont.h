// The font that a language needs: its character set and the name of a font that has its characters. The size stays.
#pragma once

#include "forms/Control.h"

#include <string>

namespace trekor {

void SetLanguageFont(Font& font, const std::string& language);

} // namespace trekor
