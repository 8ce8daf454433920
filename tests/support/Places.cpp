#include "support/Places.h"

namespace trekor::tests {

std::string SourcePlace(const std::string& below) {
  return TREKOR_SOURCE_DIR + below;
}

std::string BuildPlace(const std::string& below) {
  return TREKOR_BINARY_DIR + below;
}

} // namespace trekor::tests
