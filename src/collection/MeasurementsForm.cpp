#include "collection/MeasurementsForm.h"

namespace trekor {

namespace {

constexpr int TickMilliseconds = 25, CurtainMilliseconds = 100;
constexpr int FixedGridRows = 4;  // key, bar, icon, abbreviation
constexpr int StationColumns = 9; // as many widths are stored of StationsGrid
constexpr int FormWidth = 14400, FormHeight = 9600, ToolBarHeight = 630, TabsHeight = 3900; // twips

void FillToolBar(ToolBar& bar) {
  bar.Add({"play", "", "", "PLAY", true});
  bar.Add({"pause", "", "", "PAUSE", true});
  bar.Add({"stop", "", "", "STOP", true});
  bar.Add({"Camera1", "", "", "CAMERA1", true});
}

void Hold(Frame& frame, std::initializer_list<Control*> controls) {
  for (Control* c : controls)
    c->Container = &frame;
}

void FillFrames(MeasurementsForm& f) {
  Hold(f.tabFrames0, {&f.labels9, &f.cboTestSetupNames, &f.cboSetupID, &f.lblSetupID, &f.StepFrame, &f.BufferFrame});
  Hold(f.StepFrame, {&f.labels6, &f.labels7, &f.labels8, &f.Texts6, &f.Texts7, &f.Texts8, &f.StationUnitLabel,
                     &f.UpDnPicture, &f.DmiDirLabel});
  Hold(f.BufferFrame, {&f.lblGridDepth, &f.txtGridDepth, &f.chkNumLockFreeze});
  Hold(f.tabFrames1, {&f.fxgKeyBoard});
  Hold(f.tabFrames2, {&f.fxgKeyPad});
}

// These hold values for the logic, or a stored look.
void HideUnseen(MeasurementsForm& form) {
  for (Control* c :
       std::initializer_list<Control*>{&form.cboSetupID, &form.lblSetupID, &form.DmiDirLabel, &form.StationsGrid})
    c->SetVisible(false);
}

void ShapeGrids(MeasurementsForm& form) {
  for (Grid* g : {&form.Grid, &form.StationsGrid}) {
    g->SetFixedRows(FixedGridRows);
    g->SetRows(FixedGridRows);
  }
  form.StationsGrid.SetCols(StationColumns);
}

// A database of an earlier release has no rows for these.
void NameViewMenu(MeasurementsForm& f) {
  f.mnuViewLine1.SetCaption("-");
  f.mnuViewLarger.SetCaption("Lar&ger grid");
  f.mnuViewSmaller.SetCaption("S&maller grid");
  f.mnuViewSize.SetCaption("Grid &size");
  for (std::size_t i = 0; i < MeasurementsForm::GridSizes.size(); ++i)
    f.mnuSizes[i].SetCaption("&" + std::to_string(i + 1) + "   " + std::to_string(MeasurementsForm::GridSizes[i]) +
                             " %");
  f.mnuViewLine2.SetCaption("-");
  f.mnuViewNight.SetCaption("&Night colours");
  f.mnuViewLarger.Shortcut = "Ctrl+Page Up";
  f.mnuViewSmaller.Shortcut = "Ctrl+Page Down";
  f.mnuViewNight.Shortcut = "F12";
}

} // namespace

// The look is in the texts database; this is what the logic needs before it is read.
MeasurementsForm::MeasurementsForm() : Form("Measurements") {
  FillToolBar(tbControlBar);
  FillFrames(*this);
  FocusHome = &Grid;
  Width = FormWidth;
  Height = FormHeight;
  tbControlBar.Height = ToolBarHeight;
  TabStrip1.Height = TabsHeight;
  HideUnseen(*this);
  DmiDirLabel.SetCaption("1");
  txtGridDepth.SetText("10");
  ShapeGrids(*this);
  NameViewMenu(*this);
  IdleTimer.SetInterval(TickMilliseconds);
  TimerCurtain.SetInterval(CurtainMilliseconds);
}

} // namespace trekor
