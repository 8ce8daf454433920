// The subjects of the run, tied together. Each knows those it needs and no more.
#pragma once

#include "collection/Asking.h"
#include "collection/Boxes.h"
#include "collection/Feedback.h"
#include "collection/FileMenu.h"
#include "collection/FormKeys.h"
#include "collection/Grids.h"
#include "collection/Idle.h"
#include "collection/KeyPictures.h"
#include "collection/KeyRing.h"
#include "collection/Layout.h"
#include "collection/Measurements.h"
#include "collection/Registrations.h"
#include "collection/Run.h"
#include "collection/RunContext.h"
#include "collection/SetupChoice.h"
#include "collection/Stepping.h"
#include "collection/Storing.h"

namespace trekor {

struct Measurements::Parts {
  Parts(MeasurementsForm& form, const RunRooms& rooms) : ctx{form, rooms} {}

  RunContext ctx;
  KeyRing ring;
  BarsForm frmBars;
  Feedback feedback{ctx};
  Asking asking{ctx};
  Storing storing{ctx};
  Grids grids{ctx, asking, storing};
  Stepping stepping{ctx, grids, feedback};
  KeyPictures keyPictures{ctx};
  SetupChoice setupChoice{ctx, keyPictures, grids, feedback};
  FileMenu fileMenu{ctx, setupChoice, feedback};
  Layout layout{ctx};
  Boxes boxes{ctx, stepping};
  Run run{ctx, ring, asking, boxes, grids, storing, stepping, layout, fileMenu};
  Registrations registrations{ctx, ring, run, asking, grids, stepping, feedback};
  FormKeys formKeys{ctx, ring, run, asking, keyPictures};
  Idle idle{ctx, registrations, grids, stepping, feedback, keyPictures};
};

} // namespace trekor
