// The states of the run and the changes between them: start, pause, resume, stop. Keys, toolbar and link all come here.
// Failures inside an operation are skipped and not reported.
#pragma once

#include "collection/Grids.h"
#include "collection/KeyRing.h"
#include "collection/RunLook.h"
#include "collection/RunNews.h"
#include "collection/RunStage.h"
#include "collection/StartPreparation.h"

namespace trekor {

// Where a change of the run is shown and sent.
struct RunSigns {
  RunLook& look;
  RunNews& news;
};

class Run {
public:
  Run(RunStage& stage, KeyRing& ring, const Grids& grids, StartPreparation& preparation, const RunSigns& signs)
      : stage(stage), ring(ring), grids(grids), preparation(preparation), look(signs.look), news(signs.news) {}

  void Start_Run();
  void Pause_Run();
  void Resume_Run();
  void Stop_Run();
  void Stop_FromPause();
  // On the way out, whatever there is of a run, even in the middle of another command.
  void EndAtOnce();

private:
  void BeginInFile();
  void CancelStart();
  void SelectNewestRow();

  RunStage& stage;
  KeyRing& ring;
  Grids grids;
  StartPreparation& preparation;
  RunLook& look;
  RunNews& news;
};

} // namespace trekor
