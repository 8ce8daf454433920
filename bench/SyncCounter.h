// Counts the syncs of the storage library, in a thin layer between it and the file system.
#pragma once

namespace trekor::bench {

// From now on every database that is opened goes through the layer. False when it could not be put in.
bool CountSyncs();
long SyncCount();

} // namespace trekor::bench
