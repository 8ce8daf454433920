// A row on its way out of the buffer into the data file: a step row becomes a station and a span from the step before,
// an event row a station and a point.
#pragma once

#include "collection/RunContext.h"

namespace trekor {

class Storing {
public:
  explicit Storing(RunContext& context) : ctx(context) {}
  // What becomes of one row reaches the disk together. What fails is missing in the file and told to nobody.
  void Flush_Row(const GridRow& row);
  // The station from which the first span of a run goes out.
  void StoreStartStation();

private:
  void StorePoint(const GridRow& row, std::int32_t station);
  void StoreSpan(const GridRow& row, std::int32_t station);
  void StoreRegistration(std::int32_t from, std::int32_t to, int obs, const std::string& data);

  RunContext& ctx;
};

} // namespace trekor
