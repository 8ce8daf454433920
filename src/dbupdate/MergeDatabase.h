// Copies what a site has added to an old database (columns, rows, captions) into a new one of a later release.
#pragma once

#include "store/Database.h"

namespace trekor {

// Merges every table of the old database, except Version, that the new one has too. A row or a field that the new table
// refuses is skipped. One transaction: false, and nothing is merged, when one of the two files fails (unreadable,
// damaged, full).
bool MergeDatabase(Database& old, Database& fresh);

} // namespace trekor
