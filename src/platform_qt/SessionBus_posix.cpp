#include "platform_qt/SessionBus.h"

#include <cstdlib>
#include <filesystem>
#include <string_view>

namespace trekor {

namespace {
constexpr char Address[] = "DBUS_SESSION_BUS_ADDRESS";
constexpr char NoBus[] = "disabled:"; // a kind of address that no library knows, so that a connection fails at once
} // namespace

bool HasSessionBus() {
  const char* address = std::getenv(Address);
  if (address && *address)
    return std::string_view(address) != NoBus;
  const char* runtime = std::getenv("XDG_RUNTIME_DIR");
  std::error_code none;
  return runtime && std::filesystem::exists(std::filesystem::path(runtime) / "bus", none);
}

void StartNoSessionBus() {
  if (!HasSessionBus())
    ::setenv(Address, NoBus, 1);
}

} // namespace trekor
