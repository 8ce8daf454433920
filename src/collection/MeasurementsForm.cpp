#include "collection/MeasurementsForm.h"

namespace trekor {

namespace {

constexpr int TickMilliseconds = 25, CurtainMilliseconds = 100;
constexpr int FixedGridRows = 4;  // key, bar, icon, abbreviation
constexpr int StationColumns = 9; // as many widths are stored of StationsGrid
constexpr int FormWidth = 14400, FormHeight = 9600, ToolBarHeight = 630, TabsHeight = 3900; // twips

void Hold(Frame& frame, std::initializer_list<Control*> controls) {
  for (Control* c : controls)
    c->Container = &frame;
}

} // namespace

// The look is in the texts database; this is what the logic needs before it is read.
MeasurementsForm::MeasurementsForm() : Form("Measurements") {
  tbControlBar.Add({"play", "", "", "PLAY", true});
  tbControlBar.Add({"pause", "", "", "PAUSE", true});
  tbControlBar.Add({"stop", "", "", "STOP", true});
  tbControlBar.Add({"Camera1", "", "", "CAMERA1", true});
  FocusHome = &Grid;
  Hold(tabFrames0, {&labels9, &cboTestSetupNames, &cboSetupID, &lblSetupID, &StepFrame, &BufferFrame});
  Hold(StepFrame,
       {&labels6, &labels7, &labels8, &Texts6, &Texts7, &Texts8, &StationUnitLabel, &UpDnPicture, &DmiDirLabel});
  Hold(BufferFrame, {&lblGridDepth, &txtGridDepth, &chkNumLockFreeze});
  Hold(tabFrames1, {&fxgKeyBoard});
  Hold(tabFrames2, {&fxgKeyPad});
  Width = FormWidth;
  Height = FormHeight;
  tbControlBar.Height = ToolBarHeight;
  TabStrip1.Height = TabsHeight;
  cboSetupID.SetVisible(false);
  lblSetupID.SetVisible(false);
  DmiDirLabel.SetVisible(false);
  DmiDirLabel.SetCaption("1");
  StationsGrid.SetVisible(false);
  txtGridDepth.SetText("10");
  for (trekor::Grid* g : {&Grid, &StationsGrid}) {
    g->SetFixedRows(FixedGridRows);
    g->SetRows(FixedGridRows);
  }
  StationsGrid.SetCols(StationColumns);
  IdleTimer.SetInterval(TickMilliseconds);
  TimerCurtain.SetInterval(CurtainMilliseconds);
}

} // namespace trekor
