#include "FileCalls.h"

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <filesystem>
#include <type_traits>

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <unistd.h>

namespace trekor::tests {

namespace {

struct Plan {
  bool active = false;
  Fault fault = Fault::None;
  int faultyCall = 0;
  int count = 0;
  std::vector<FileCall> made;
};

// Mutable and global, as the calls carry no context of ours.
Plan& ThePlan() {
  static Plan plan;
  return plan;
}

template <typename Function> Function Real(const char* name) {
  return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

template <typename Result> Result Failure() {
  errno = ThePlan().fault == Fault::DiskFull ? ENOSPC : EIO;
  if constexpr (std::is_pointer_v<Result>)
    return nullptr;
  else
    return -1;
}

bool Fails(bool changes) {
  Plan& plan = ThePlan();
  if (!plan.active)
    return false;
  const bool counts = changes || plan.fault == Fault::FailOnce;
  plan.count += counts ? 1 : 0;
  switch (plan.fault) {
  case Fault::FailOnce:
    return plan.count == plan.faultyCall;
  case Fault::DiskFull:
    return changes && plan.count >= plan.faultyCall;
  case Fault::DriveGone:
    return plan.count >= plan.faultyCall;
  default:
    return false;
  }
}

template <typename Call> auto Look(Call call) {
  return Fails(false) ? Failure<decltype(call())>() : call();
}

// `half` is what a kill in the middle leaves done.
template <typename Call, typename Half> auto Change(FileCall what, Call call, Half half) {
  Plan& plan = ThePlan();
  if (Fails(true))
    return Failure<decltype(call())>();
  if (!plan.active)
    return call();
  if (plan.fault == Fault::Kill && plan.count == plan.faultyCall) {
    half();
    _exit(99);
  }
  plan.made.push_back(std::move(what));
  return call();
}

template <typename Call> auto Change(FileCall what, Call call) {
  return Change(std::move(what), call, [] {});
}

std::string PathOf(int file) {
  std::error_code none;
  return ThePlan().active ? std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(file), none).string() : "";
}

template <typename Call> auto WriteTo(int file, Call call, std::size_t size) {
  return Change(
      {"write", PathOf(file), ""}, [&] { return call(size); }, [&] { call(size / 2); });
}

template <typename Call> int OpenAs(const char* path, int flags, Call call) {
  return (flags & (O_CREAT | O_TRUNC)) != 0 ? Change({"make", path, ""}, call) : Look(call);
}

template <typename Call> std::FILE* OpenStream(const char* path, const char* mode, Call call) {
  return std::string(mode).starts_with('r') ? Look(call) : Change({"make", path, ""}, call);
}

} // namespace

FileFaults::FileFaults(Fault fault, int n) {
  ThePlan() = {true, fault, n, 0, {}};
}
FileFaults::~FileFaults() {
  ThePlan().active = false;
}
int FileFaults::Count() const {
  return ThePlan().count;
}
const std::vector<FileCall>& FileFaults::Made() const {
  return ThePlan().made;
}

} // namespace trekor::tests

using namespace trekor::tests;

extern "C" {

int open(const char* path, int flags, ...) {
  va_list rest;
  va_start(rest, flags);
  const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
  va_end(rest);
  static const auto real = Real<int (*)(const char*, int, ...)>("open");
  return OpenAs(path, flags, [=] { return real(path, flags, mode); });
}

int open64(const char* path, int flags, ...) {
  va_list rest;
  va_start(rest, flags);
  const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
  va_end(rest);
  static const auto real = Real<int (*)(const char*, int, ...)>("open64");
  return OpenAs(path, flags, [=] { return real(path, flags, mode); });
}

int openat(int folder, const char* path, int flags, ...) {
  static const auto real = Real<int (*)(int, const char*, int, ...)>("openat");
  return Look([=] { return real(folder, path, flags, 0); });
}

dirent* readdir(DIR* folder) {
  static const auto real = Real<dirent* (*)(DIR*)>("readdir");
  return Look([=] { return real(folder); });
}

ssize_t read(int file, void* to, std::size_t size) {
  static const auto real = Real<ssize_t (*)(int, void*, std::size_t)>("read");
  return Look([=] { return real(file, to, size); });
}

ssize_t pread64(int file, void* to, std::size_t size, off64_t at) {
  static const auto real = Real<ssize_t (*)(int, void*, std::size_t, off64_t)>("pread64");
  return Look([=] { return real(file, to, size, at); });
}

ssize_t write(int file, const void* from, std::size_t size) {
  static const auto real = Real<ssize_t (*)(int, const void*, std::size_t)>("write");
  return WriteTo(
      file, [=](std::size_t bytes) { return real(file, from, bytes); }, size);
}

ssize_t pwrite64(int file, const void* from, std::size_t size, off64_t at) {
  static const auto real = Real<ssize_t (*)(int, const void*, std::size_t, off64_t)>("pwrite64");
  return WriteTo(
      file, [=](std::size_t bytes) { return real(file, from, bytes, at); }, size);
}

ssize_t sendfile(int to, int from, off_t* at, std::size_t size) noexcept {
  static const auto real = Real<ssize_t (*)(int, int, off_t*, std::size_t)>("sendfile");
  return WriteTo(
      to, [=](std::size_t bytes) { return real(to, from, at, bytes); }, size);
}

int ftruncate64(int file, off64_t size) noexcept {
  static const auto real = Real<int (*)(int, off64_t)>("ftruncate64");
  return Change({"write", PathOf(file), ""}, [=] { return real(file, size); });
}

int fsync(int file) {
  static const auto real = Real<int (*)(int)>("fsync");
  return Change({"sync", PathOf(file), ""}, [=] { return real(file); });
}

int fdatasync(int file) {
  static const auto real = Real<int (*)(int)>("fdatasync");
  return Change({"sync", PathOf(file), ""}, [=] { return real(file); });
}

int rename(const char* from, const char* to) noexcept {
  static const auto real = Real<int (*)(const char*, const char*)>("rename");
  return Change({"rename", from, to}, [=] { return real(from, to); });
}

int remove(const char* path) noexcept {
  static const auto real = Real<int (*)(const char*)>("remove");
  return Change({"remove", path, ""}, [=] { return real(path); });
}

int unlink(const char* path) noexcept {
  static const auto real = Real<int (*)(const char*)>("unlink");
  return Change({"remove", path, ""}, [=] { return real(path); });
}

int unlinkat(int folder, const char* path, int flags) noexcept {
  static const auto real = Real<int (*)(int, const char*, int)>("unlinkat");
  return Change({"remove", path, ""}, [=] { return real(folder, path, flags); });
}

std::FILE* fopen(const char* path, const char* mode) {
  static const auto real = Real<std::FILE* (*)(const char*, const char*)>("fopen");
  return OpenStream(path, mode, [=] { return real(path, mode); });
}

std::FILE* fopen64(const char* path, const char* mode) {
  static const auto real = Real<std::FILE* (*)(const char*, const char*)>("fopen64");
  return OpenStream(path, mode, [=] { return real(path, mode); });
}

std::size_t fwrite(const void* from, std::size_t size, std::size_t count, std::FILE* to) {
  static const auto real = Real<std::size_t (*)(const void*, std::size_t, std::size_t, std::FILE*)>("fwrite");
  const auto write = [=](std::size_t items) { return static_cast<ssize_t>(real(from, size, items, to)); };
  return static_cast<std::size_t>(std::max<ssize_t>(WriteTo(fileno(to), write, count), 0));
}

int mkdir(const char* path, mode_t mode) noexcept {
  static const auto real = Real<int (*)(const char*, mode_t)>("mkdir");
  return Change({"folder", path, ""}, [=] { return real(path, mode); });
}

int fchmod(int file, mode_t mode) noexcept {
  static const auto real = Real<int (*)(int, mode_t)>("fchmod");
  return Change({"mode", PathOf(file), ""}, [=] { return real(file, mode); });
}

int fchmodat(int folder, const char* path, mode_t mode, int flags) noexcept {
  static const auto real = Real<int (*)(int, const char*, mode_t, int)>("fchmodat");
  return Change({"mode", path, ""}, [=] { return real(folder, path, mode, flags); });
}

int fcntl64(int file, int what, ...) {
  va_list rest;
  va_start(rest, what);
  void* const with = va_arg(rest, void*);
  va_end(rest);
  static const auto real = Real<int (*)(int, int, ...)>("fcntl64");
  return Look([=] { return real(file, what, with); });
}

int access(const char* path, int mode) noexcept {
  static const auto real = Real<int (*)(const char*, int)>("access");
  return Look([=] { return real(path, mode); });
}

int stat(const char* path, struct stat* to) noexcept {
  static const auto real = Real<int (*)(const char*, struct stat*)>("stat");
  return Look([=] { return real(path, to); });
}

int stat64(const char* path, struct stat64* to) noexcept {
  static const auto real = Real<int (*)(const char*, struct stat64*)>("stat64");
  return Look([=] { return real(path, to); });
}

int lstat(const char* path, struct stat* to) noexcept {
  static const auto real = Real<int (*)(const char*, struct stat*)>("lstat");
  return Look([=] { return real(path, to); });
}

int lstat64(const char* path, struct stat64* to) noexcept {
  static const auto real = Real<int (*)(const char*, struct stat64*)>("lstat64");
  return Look([=] { return real(path, to); });
}

int fstat64(int file, struct stat64* to) noexcept {
  static const auto real = Real<int (*)(int, struct stat64*)>("fstat64");
  return Look([=] { return real(file, to); });
}

} // extern "C"
