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
  Run(RunContext& context, KeyRing& keyRing, Asking& asking, Boxes& formBoxes, Grids& collectionGrids, Storing& storing,
      Stepping& roadSteps, Layout& layout, FileMenu& fileMenu)
      : ctx(context), ring(keyRing), ask(asking), boxes(formBoxes), grids(collectionGrids), store(storing),
        stepping(roadSteps), place(layout), files(fileMenu) {}

  void Start_Run();
  void Pause_Run();
  void Resume_Run();
  void Stop_Run();
  void Stop_FromPause();
  // Ends the run and closes the file on the way out, even from the middle of another run command.
  void Stop_AndClose();

private:
  bool Prepare_Start();
  bool Read_Step();
  void Settle_Station();
  bool Announce_Start();
  void Begin_File();
  void Show_Running();
  void Cancel_Start();
  void Restore_NumLock();
  void Store_Rows();
  void Set_Buttons(bool play, bool pause, bool stop);
  void Set_MenusEnabled(bool on);

  RunContext& ctx;
  KeyRing& ring;
  Asking& ask;
  Boxes& boxes;
  Grids& grids;
  Storing& store;
  Stepping& stepping;
  Layout& place;
  FileMenu& files;
};

} // namespace trekor
