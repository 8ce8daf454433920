// The pictures of observations: every file of the graphics folder, and four that are built in.
#pragma once

#include "collection/MeasurementsForm.h"
#include "platform/Drives.h"

#include <string>

namespace trekor {

// Fills both image lists anew; `folder` ends with a backslash.
void Load_Icons(MeasurementsForm& form, const std::string& folder, Drives& drives);

} // namespace trekor
