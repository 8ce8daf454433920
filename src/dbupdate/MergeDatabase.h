// Takes what a site has put into an old database over into a new one of a later release: added columns, rows, captions.
#pragma once

#include "store/Database.h"

namespace trekor {

// Every table of the old database but Version that the new one has too. Tables that only the old one has stay behind. A
// row or a field that the new table refuses is skipped. All of it reaches the disk together: false, and nothing is
// merged, when one of the two files fails (unreadable, damaged, full).
bool MergeDatabase(Database& old, Database& fresh);

} // namespace trekor
