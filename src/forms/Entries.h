// Entries of a list by the whole numbers that forms count with: -1 and places beyond the end are asked for in ordinary
// use.
#pragma once

#include <cstddef>
#include <string>

namespace trekor {

// What a text reads as where there is no entry.
inline const std::string Nothing;

template <class List> bool Has(const List& list, int i) {
  return i >= 0 && i < static_cast<int>(list.size());
}

template <class List> decltype(auto) At(List& list, int i) {
  return list[static_cast<std::size_t>(i)];
}

} // namespace trekor
