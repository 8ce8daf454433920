// The columns of the collection grid and their heads: key, value bar, icon and name of each observation.
#pragma once

#include "collection/GridValues.h"
#include "collection/KeyPictures.h"

namespace trekor {

class GridHead {
public:
  GridHead(RunGrid& runGrid, GridValues& values, const KeyPictures& keyPictures)
      : grid(runGrid), values(values), keyPictures(keyPictures) {}
  // Both after a change of the setup, in this order: for an empty setup the second restores the flags that the first
  // leaves set.
  void Setup_Grid();
  void Format_GridHeader();

private:
  void MakeColumn(int i);

  RunGrid& grid;
  GridValues& values;
  const KeyPictures& keyPictures;
};

} // namespace trekor
