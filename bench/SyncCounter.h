// Counts what the storage library asks of the disk: a thin layer between it and the files of the system.
#pragma once

namespace trekor::bench {

// From now on every database that is opened goes through the layer.
bool CountSyncs();
long SyncCount();

} // namespace trekor::bench
