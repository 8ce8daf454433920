// The tree share/trekor as the build has made it.
#pragma once

#include "support/Databases.h"
#include "support/Places.h"

#include <gtest/gtest.h>

namespace trekor::tests {

inline std::string Share(const std::string& file) {
  return BuildPlace("/share/trekor/") + file;
}

inline std::unique_ptr<Database> OpenShared(const std::string& file) {
  return Database::Open(Share(file), OpenMode::ReadOnly);
}

} // namespace trekor::tests
