#include "SyncCounter.h"

#include <sqlite3.h>

namespace trekor::bench {
namespace {

// The library gives the memory for a file; behind our own part lies that of the system's file.
struct CountedFile {
  sqlite3_file base;
  sqlite3_file* real;
};

struct Layer {
  sqlite3_vfs own = {};
  sqlite3_vfs* system = nullptr;
  long syncs = 0;
};

// Mutable and global, as the library calls back without a context of ours.
Layer& TheLayer() {
  static Layer layer;
  return layer;
}

sqlite3_file* Real(sqlite3_file* file) {
  return reinterpret_cast<CountedFile*>(file)->real;
}

int Close(sqlite3_file* f) {
  return Real(f)->pMethods ? Real(f)->pMethods->xClose(Real(f)) : SQLITE_OK;
}
int Read(sqlite3_file* f, void* to, int count, sqlite3_int64 at) {
  return Real(f)->pMethods->xRead(Real(f), to, count, at);
}
int Write(sqlite3_file* f, const void* from, int count, sqlite3_int64 at) {
  return Real(f)->pMethods->xWrite(Real(f), from, count, at);
}
int Truncate(sqlite3_file* f, sqlite3_int64 size) {
  return Real(f)->pMethods->xTruncate(Real(f), size);
}
int Sync(sqlite3_file* f, int flags) {
  ++TheLayer().syncs;
  return Real(f)->pMethods->xSync(Real(f), flags);
}
int FileSize(sqlite3_file* f, sqlite3_int64* size) {
  return Real(f)->pMethods->xFileSize(Real(f), size);
}
int Lock(sqlite3_file* f, int level) {
  return Real(f)->pMethods->xLock(Real(f), level);
}
int Unlock(sqlite3_file* f, int level) {
  return Real(f)->pMethods->xUnlock(Real(f), level);
}
int CheckReservedLock(sqlite3_file* f, int* reserved) {
  return Real(f)->pMethods->xCheckReservedLock(Real(f), reserved);
}
int FileControl(sqlite3_file* f, int what, void* with) {
  return Real(f)->pMethods->xFileControl(Real(f), what, with);
}
int SectorSize(sqlite3_file* f) {
  return Real(f)->pMethods->xSectorSize(Real(f));
}
int DeviceCharacteristics(sqlite3_file* f) {
  return Real(f)->pMethods->xDeviceCharacteristics(Real(f));
}

// Version 1 knows no shared memory: an exclusively held file needs none, and no other is measured here.
constexpr sqlite3_io_methods Methods = {1,
                                        Close,
                                        Read,
                                        Write,
                                        Truncate,
                                        Sync,
                                        FileSize,
                                        Lock,
                                        Unlock,
                                        CheckReservedLock,
                                        FileControl,
                                        SectorSize,
                                        DeviceCharacteristics,
                                        nullptr,
                                        nullptr,
                                        nullptr,
                                        nullptr,
                                        nullptr,
                                        nullptr};

int OpenCounted(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* outFlags) {
  auto* counted = reinterpret_cast<CountedFile*>(file);
  counted->real = reinterpret_cast<sqlite3_file*>(counted + 1);
  counted->real->pMethods = nullptr;
  sqlite3_vfs* system = TheLayer().system;
  if (!system)
    return SQLITE_CANTOPEN;
  const int result = system->xOpen(system, name, counted->real, flags, outFlags);
  counted->base.pMethods = counted->real->pMethods ? &Methods : nullptr;
  return result;
}

} // namespace

bool CountSyncs() {
  Layer& layer = TheLayer();
  if (layer.system)
    return true;
  layer.system = sqlite3_vfs_find(nullptr);
  if (!layer.system)
    return false;
  layer.own = *layer.system;
  layer.own.zName = "counted";
  layer.own.szOsFile = static_cast<int>(sizeof(CountedFile)) + layer.system->szOsFile;
  layer.own.xOpen = OpenCounted;
  return sqlite3_vfs_register(&layer.own, 1) == SQLITE_OK;
}

long SyncCount() {
  return TheLayer().syncs;
}

} // namespace trekor::bench
