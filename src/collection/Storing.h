// A row on its way out of the grids into the data file: a step row becomes a station and a span from the step before,
// an event row a station and a point.
#pragma once

#include "collection/RunContext.h"

namespace trekor {

class Storing {
public:
  explicit Storing(RunContext& context) : ctx(context) {}
  // The rows of one grid row reach the disk together. What fails is missing in the file and told to nobody.
  void Flush_Row(int row);
  // The station from which the first span of a run goes out.
  void Store_StartStation();

private:
  void Store_Point(int row, int obs, std::int32_t station);
  void Store_Span(int row, std::int32_t station);
  void Add_Registration(std::int32_t from, std::int32_t to, int obs, const std::string& data);

  RunContext& ctx;
};

} // namespace trekor
