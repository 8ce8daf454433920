// The states of the run and what moves between them: start, pause, resume, stop. Keys, toolbar and link all come
// through here. A run operation goes on after an error inside it; nothing is reported.
#pragma once

#include "collection/Asking.h"
#include "collection/Boxes.h"
#include "collection/FileMenu.h"
#include "collection/Grids.h"
#include "collection/KeyRing.h"
#include "collection/Layout.h"
#include "collection/RunContext.h"
#include "collection/Stepping.h"
#include "collection/Storing.h"

#include <string>

namespace trekor {

class Run {
public:
  Run(RunContext& context, KeyRing& ring, Asking& asking, Boxes& boxes, Grids& grids, Storing& storing,
      Stepping& stepping, Layout& layout, FileMenu& fileMenu)
      : ctx(context), ring(ring), asking(asking), boxes(boxes), grids(grids), storing(storing), stepping(stepping),
        layout(layout), fileMenu(fileMenu) {}

  void Start_Run();
  void Pause_Run();
  void Resume_Run();
  void Stop_Run();
  void Stop_FromPause();
  // Ends the run and closes the file on the way out, even from the middle of another run command.
  void StopAndClose();

private:
  bool PrepareStart();
  bool ReadStep();
  void SettleStation();
  bool AnnounceStart();
  void BeginInFile();
  void ShowRunning();
  void CancelStart();
  void RestoreNumLock();
  void StoreRows();
  void SetButtons(bool play, bool pause, bool stop);
  void SetMenusEnabled(bool on);

  RunContext& ctx;
  KeyRing& ring;
  Asking& asking;
  Boxes& boxes;
  Grids& grids;
  Storing& storing;
  Stepping& stepping;
  Layout& layout;
  FileMenu& fileMenu;
};

} // namespace trekor
