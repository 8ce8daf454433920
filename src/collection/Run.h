// The states of the run and what moves between them: start, pause, resume, stop. Keys, toolbar and link all come
// through here. A run operation goes on after an error inside it; nothing is reported.
#pragma once

#include "collection/Grids.h"
#include "collection/KeyRing.h"
#include "collection/RunLook.h"
#include "collection/RunNews.h"
#include "collection/RunStage.h"
#include "collection/StartPreparation.h"

namespace trekor {

// How a change of the run is told: on the form and to the control program.
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
  // On the way out: of a start that has not come to its end, and of a run even from the middle of another command.
  void CancelStart();
  void StopAtOnce();

private:
  void BeginInFile();
  void SelectNewestRow();

  RunStage& stage;
  KeyRing& ring;
  Grids grids;
  StartPreparation& preparation;
  RunLook& look;
  RunNews& news;
};

} // namespace trekor
