// Pictures in database fields: a data file carries its own copy of the icons, so that it can be read without the
// vocabulary.
#pragma once

#include "platform/Platform.h"
#include "state/ProgramState.h"
#include "store/Recordset.h"

#include <string>

namespace trekor {

// Appends the picture of an image-list key to a LONGBINARY field of a row that is being added or edited; nothing with a
// null recordset or an empty key. Goes through AppPath\temp.bin and lets events run. A few surplus zeros follow the
// picture, as in all data files in the field; the picture format carries its own length. False after a failure, which
// is shown in a message box if `tell` is set: a file has pictures by the dozen, and a box holds the link.
bool dbSaveImage(Recordset* row, const std::string& field, const std::string& picture, const FolderPaths& folders,
                 Platform& platform, bool tell = true);

} // namespace trekor
