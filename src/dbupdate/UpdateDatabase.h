// Brings one working database up to its released template without losing what the site has put into it. Every database
// goes through here each time before it is first opened.
#pragma once

#include "core/ProgramState.h"
#include "platform/Platform.h"

#include <string>

namespace trekor {

struct UpdateResult {
  std::string path;         // the working database, a path of the program
  DbVersion version;        // the template's
  bool programEnds = false; // a message was shown and the program must not go on
};

// `templateName` names AppPath\T.vdb; `folder` and `name` the working file (an empty name is the template's).
UpdateResult UpdateDatabase(const FolderPaths& folders, Platform& platform, const std::string& templateName,
                            const std::string& folder, const std::string& name);

} // namespace trekor
