// Builds the subjects of the run and ties them together. Each gets those it needs; the dispatcher and the program take
// the one that they call.
#pragma once

#include "collection/Asking.h"
#include "collection/Boxes.h"
#include "collection/Feedback.h"
#include "collection/FileMenu.h"
#include "collection/FormKeys.h"
#include "collection/FormStatus.h"
#include "collection/GridDepthBox.h"
#include "collection/GridHead.h"
#include "collection/Grids.h"
#include "collection/Idle.h"
#include "collection/KeyAssignment.h"
#include "collection/KeyOrders.h"
#include "collection/Layout.h"
#include "collection/OptionsMenu.h"
#include "collection/Registrations.h"
#include "collection/Run.h"
#include "collection/RunRooms.h"
#include "collection/SetupChoice.h"
#include "collection/ViewMenu.h"
#include "collection/WayOut.h"

namespace trekor {

struct RunSubjects {
  RunSubjects(MeasurementsForm& form, const RunRooms& rooms) : form(form), rooms(rooms) {}

  MeasurementsForm& form;
  RunRooms rooms;
  ProgramState& state = rooms.state;
  Platform& platform = rooms.platform;
  Positions& position = state.position;
  StepControls stepControls = StepControlsOf(form);
  BarsForm frmBars;

  // What the run itself keeps.
  RunStage stage{state.run, platform.pump};
  RunGrid runGrid{form.Grid, rooms.setup};
  KeyRing ring;

  // The operator and the control program.
  NumLock numLock{platform.keyboard, form.chkNumLockFreeze};
  Asking asking{platform, rooms.texts, rooms.setup, position.KeyStation, numLock};
  Feedback feedback{state, platform.sound, platform.drives, rooms.setup, rooms.messages};
  RunNews news{state, rooms.socket, stage};
  KeyPictures keyPictures{form, platform.shell, rooms.texts, rooms.setup};
  FormStatus status{form, state, stage, keyPictures, rooms.optionsDialog};
  Layout layout{form};
  ViewMenu viewMenu{form, platform.shell};
  RunLook look{runGrid, platform.shell, platform.screen, layout, status};

  // The grid.
  Storing storing{rooms.dataFiles, rooms.setup, state, platform.clock};
  GridValues gridValues{runGrid, position.KeyStation};
  GridHead gridHead{runGrid, gridValues, keyPictures};
  GridRows gridRows{runGrid, gridValues, storing, stage, position};
  GridEditing gridEditing{runGrid, gridValues, asking, stage};
  Grids grids{runGrid, gridValues, gridRows, gridEditing};

  KeyAssignment keyAssignment{form, keyPictures, runGrid, stage};

  // The road.
  StepBoxes stepBoxes{stepControls, state, stage, news, asking};
  Boxes boxes{stepControls, stepBoxes, stage, rooms.SendKeysObject, state.command};
  GridDepthBox gridDepth{form.txtGridDepth, runGrid.rows, stage};
  Stepping stepping{position, stage, gridRows, feedback, form.Texts8};
  StepBar stepBar{position, stage, gridValues, feedback};
  Simulation simulation{state, stage, news, stepping};

  // Setup and data file.
  SetupChoice setupChoice{{form.cboTestSetupNames, form.cboSetupID, form.lblSetupID},
                          rooms.setupDatabase,
                          rooms.setup,
                          state,
                          {keyPictures, gridHead, feedback}};
  SessionFile sessionFile{state, platform, storing, rooms.comma, rooms.setup};
  DataFileExport dataFileExport{state, rooms.dataFiles, rooms.comma, rooms.setup};
  FileMenu fileMenu{stage, news, rooms.dialogs, {sessionFile, dataFileExport, rooms.options}, status};

  OptionsMenu optionsMenu{state.options, stage, stepBoxes, news, rooms.optionsDialog};

  // The run.
  StartPreparation preparation{stage, {fileMenu, optionsMenu}, numLock, gridDepth, stepBoxes};
  Run run{stage, ring, grids, preparation, {look, news}};
  WayOut wayOut{stage, form.IdleTimer, stepping, run, fileMenu};
  Registrations registrations{grids, asking, feedback, stage};
  KeyMarks keyMarks{keyPictures, stage};
  KeyOrders keyOrders{stage, ring, stepping, keyMarks, {run, registrations}};
  IdleKeys idleKeys{form, position, {run, keyAssignment, viewMenu, rooms.texts}};
  FormKeys formKeys{stage, ring, idleKeys, numLock, news};
  RunMarks runMarks{runGrid, stage, position, ring};
  SlowWork slowWork{platform.clock, platform.socket, stage, {stepBar, runMarks, keyMarks, simulation, status}};
  Idle idle{form.IdleTimer, stage, keyOrders, gridEditing, slowWork};
};

} // namespace trekor
