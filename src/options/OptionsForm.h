// The options form as data. Its look is in the texts database, its logic in Options. Each set of option buttons stands
// in a frame of its own, in which one excludes the others.
#pragma once

#include "forms/Form.h"

namespace trekor {

struct OptionsForm : Form {
  OptionsForm();

  // What the operator reads and types.
  Frame UnitsFrame{*this, "UnitsFrame"};
  OptionButton OptionMetric{*this, "OptionMetric"}, OptionUS{*this, "OptionUS"};
  Label Labels0{*this, "Labels", 0};
  ComboBox Combos0{*this, "Combos", 0}; // StationUnit
  Label Labels2{*this, "Labels", 2};
  ComboBox Combos2{*this, "Combos", 2}; // GeographicFormat

  // What stands in data files.
  Frame FileUnitsFrame{*this, "FileUnitsFrame"};
  OptionButton FileOptionMetric{*this, "FileOptionMetric"}, FileOptionUS{*this, "FileOptionUS"};
  Label Labels1{*this, "Labels", 1};
  ComboBox Combos1{*this, "Combos", 1}; // FileStationUnit

  Frame DrivingSideFrame{*this, "DrivingSideFrame"};
  OptionButton OptionRight{*this, "OptionRight"}, OptionLeft{*this, "OptionLeft"};

  // What is left when a data file has been closed.
  Frame FilesFrame{*this, "FilesFrame"};
  CheckBox TKRCheck{*this, "TKRCheck"}, MDBCheck{*this, "MDBCheck"};

  // How the operator is told, by text and by voice.
  Frame FeedbackFrame{*this, "FeedbackFrame"};
  CheckBox ErrorTextCheck{*this, "ErrorTextCheck"}, ErrorVoiceCheck{*this, "ErrorVoiceCheck"},
      WarningTextCheck{*this, "WarningTextCheck"}, WarningVoiceCheck{*this, "WarningVoiceCheck"},
      AssistanceTextCheck{*this, "AssistanceTextCheck"}, AssistanceVoiceCheck{*this, "AssistanceVoiceCheck"};
  Frame FeedbackFrameChild{*this, "FeedbackFrameChild"};
  OptionButton optDataColVoice{*this, "optDataColVoice"}, optDataColTones{*this, "optDataColTones"};

  Label LastChangeLabel{*this, "LastChangeLabel"}; // "Jane Doe - 2031-02-03"
  CommandButton CmdOK{*this, "CmdOK"}, CmdCancel{*this, "CmdCancel"}, CmdApply{*this, "CmdApply"};
};

} // namespace trekor
