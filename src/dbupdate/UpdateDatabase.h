// Brings one working database up to its released template and keeps what the site has put into it. Every database is
// updated here each time before it is first opened.
//
// The new database is made and filled beside the old one, which it replaces in one step when all of it is on the disk.
// Until then the old file is there with its old version, whatever fails and wherever the program is killed: the
// operator is told, the program goes on with the old file, and the next start tries again. A template of version 1.1
// updates nothing; the version after 1.0 is therefore 1.2.
#pragma once

#include "platform/Platform.h"
#include "state/ProgramState.h"
#include "store/Database.h"

#include <memory>
#include <string>

namespace trekor {

struct UpdateResult {
  std::string path;         // the working database, a path of the program
  DbVersion version;        // the template's
  bool programEnds = false; // a message was shown and the program must not go on
  // The working database, open to be shared; null when it can't be opened. Every start waits for the vocabulary and
  // the texts, so these are not opened twice.
  std::unique_ptr<Database> database = {};
};

// `templateName` names AppPath\T.vdb; `folder` and `name` the working file (an empty name is the template's).
UpdateResult UpdateDatabase(const FolderPaths& folders, Platform& platform, const std::string& templateName,
                            const std::string& folder, const std::string& name);

} // namespace trekor
