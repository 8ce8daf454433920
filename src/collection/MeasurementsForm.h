// The main form as data. Its look is in the texts database, its logic in Measurements.
#pragma once

#include "forms/Form.h"
#include "forms/Grid.h"

#include <array>

namespace trekor {

struct MeasurementsForm : Form {
  MeasurementsForm();

  Menu mnuFile{*this, "mnuFile"};
  Menu mnuNew{*this, "mnuNew", &mnuFile}, mnuOpen{*this, "mnuOpen", &mnuFile}, mnuClose{*this, "mnuClose", &mnuFile},
      mnuExport{*this, "mnuExport", &mnuFile}, mnuExit{*this, "mnuExit", &mnuFile};
  Menu mnuView{*this, "mnuView"};
  Menu mnuViewKeyBoard{*this, "mnuViewKeyBoard", &mnuView}, mnuViewKeyPad{*this, "mnuViewKeyPad", &mnuView},
      mnuViewSocket{*this, "mnuViewSocket", &mnuView}, mnuViewLine1{*this, "mnuViewLine1", &mnuView},
      mnuViewLarger{*this, "mnuViewLarger", &mnuView}, mnuViewSmaller{*this, "mnuViewSmaller", &mnuView},
      mnuViewSize{*this, "mnuViewSize", &mnuView};
  // The sizes of the grid in percent; the middle one is the given size. Their ticks are what is stored.
  static constexpr std::array GridSizes{70, 80, 90, 100, 125, 160, 200};
  Menu mnuSizes[GridSizes.size()]{{*this, "mnuSize70", &mnuViewSize},  {*this, "mnuSize80", &mnuViewSize},
                                  {*this, "mnuSize90", &mnuViewSize},  {*this, "mnuSize100", &mnuViewSize},
                                  {*this, "mnuSize125", &mnuViewSize}, {*this, "mnuSize160", &mnuViewSize},
                                  {*this, "mnuSize200", &mnuViewSize}};
  Menu mnuViewLine2{*this, "mnuViewLine2", &mnuView}, mnuViewNight{*this, "mnuViewNight", &mnuView};
  Menu mnuSetup{*this, "mnuSetup"};
  Menu mnuObsEdit{*this, "mnuObsEdit", &mnuSetup}, mnuOptions{*this, "mnuOptions", &mnuSetup},
      mnuMessaging{*this, "mnuMessaging", &mnuSetup};
  Menu mnuHelp{*this, "mnuHelp"};
  Menu mnuHelpTopics{*this, "mnuHelpTopics", &mnuHelp}, mnuAbout{*this, "mnuAbout", &mnuHelp};

  ToolBar tbControlBar{*this, "tbControlBar"}; // "play", "pause", "stop", "Camera1"
  TabStrip TabStrip1{*this, "TabStrip1"};      // "Info", "Keyboard", "Keypad"
  Frame tabFrames0{*this, "tabFrames", 0}, tabFrames1{*this, "tabFrames", 1}, tabFrames2{*this, "tabFrames", 2};

  // Tab Info.
  Label labels9{*this, "labels", 9}; // "Test setup"
  ComboBox cboTestSetupNames{*this, "cboTestSetupNames"};
  ComboBox cboSetupID{*this, "cboSetupID"}; // hidden twin of the list, the ids
  Label lblSetupID{*this, "lblSetupID"};    // hidden, the id that was chosen last
  Frame StepFrame{*this, "StepFrame"};
  Label labels6{*this, "labels", 6}, labels7{*this, "labels", 7}, labels8{*this, "labels", 8};
  TextBox Texts6{*this, "Texts", 6}; // Station
  TextBox Texts7{*this, "Texts", 7}; // Step
  TextBox Texts8{*this, "Texts", 8}; // Previous
  Label StationUnitLabel{*this, "StationUnitLabel"};
  Image UpDnPicture{*this, "UpDnPicture"}; // "UPICON" or "DNICON"
  Label DmiDirLabel{*this, "DmiDirLabel"}; // hidden, "1" increasing, "0" decreasing
  Frame BufferFrame{*this, "BufferFrame"};
  Label lblGridDepth{*this, "lblGridDepth"};
  TextBox txtGridDepth{*this, "txtGridDepth"};
  CheckBox chkNumLockFreeze{*this, "chkNumLockFreeze"};

  // Tabs Keyboard and Keypad.
  trekor::Grid fxgKeyBoard{*this, "fxgKeyBoard"};
  trekor::Grid fxgKeyPad{*this, "fxgKeyPad"};

  trekor::Grid Grid{*this, "Grid"};
  trekor::Grid StationsGrid{*this, "StationsGrid"}; // empty, never shown: for its stored look

  ImageList imlObsPicsUCaseKeys{*this, "imlObsPicsUCaseKeys"};
  ImageList imlObsPicsDragIcons{*this, "imlObsPicsDragIcons"};
  Timer IdleTimer{*this, "IdleTimer"};
  Timer TimerCurtain{*this, "TimerCurtain"};
};

// The controls of station, step and direction, for classes that work with them alone.
struct StepControls {
  TextBox &Texts6, &Texts7, &Texts8;
  Label &labels6, &labels7, &labels8;
  Label& StationUnitLabel;
  Image& UpDnPicture;
  Label& DmiDirLabel;
};
inline StepControls StepControlsOf(MeasurementsForm& form) {
  return {form.Texts6,  form.Texts7,           form.Texts8,      form.labels6,    form.labels7,
          form.labels8, form.StationUnitLabel, form.UpDnPicture, form.DmiDirLabel};
}

// The list of test setups and its hidden twins.
struct SetupControls {
  ComboBox &cboTestSetupNames, &cboSetupID;
  Label& lblSetupID;
};

// The floating pictures of keyboard and keypad.
struct KeyBoardForm : Form {
  KeyBoardForm() : Form("frmKeyBoard") {
    ToolWindow = true;
    MinWidth = 735;
    MinHeight = 3000;
  }
  trekor::Grid fxgKeyBoard{*this, "fxgKeyBoard"};
};
struct KeyPadForm : Form {
  KeyPadForm() : Form("frmKeyPad") {
    ToolWindow = true;
    MinWidth = 765;
    MinHeight = 3000;
  }
  trekor::Grid fxgKeyPad{*this, "fxgKeyPad"};
};
// The store of the value-bar pictures; never shown, the views draw the bars themselves.
struct BarsForm : Form {
  BarsForm() : Form("frmBars") {}
};

} // namespace trekor
