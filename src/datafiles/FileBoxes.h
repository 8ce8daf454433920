// The controls that the forms for choosing data files have in common.
#pragma once

#include "forms/Form.h"

namespace trekor {

struct FileListBoxes {
  explicit FileListBoxes(Form& form)
      : DriveSelect(form, "DriveSelect", -1, Kind::DriveListBox),
        DirectorySelect(form, "DirectorySelect", Kind::DirListBox), LabelFiles(form, "LabelFiles"),
        FileSelect(form, "FileSelect", Kind::FileListBox), LabelPath(form, "LabelPath"),
        FullPathLabel(form, "FullPathLabel") {}
  ComboBox DriveSelect;
  ListBox DirectorySelect;
  Label LabelFiles;
  ListBox FileSelect;
  Label LabelPath, FullPathLabel;
};

// What the newest session of the file under the cursor is about. The boxes can be read and copied from.
struct SessionBoxes {
  explicit SessionBoxes(Form& form)
      : Labels0(form, "Labels", 0), Texts0(form, "Texts", 0), Labels1(form, "Labels", 1), Texts1(form, "Texts", 1),
        Labels9(form, "Labels", 9), Texts9(form, "Texts", 9), Labels10(form, "Labels", 10), Texts10(form, "Texts", 10),
        LabelSetup(form, "LabelSetup"), TestSetupLabel(form, "TestSetupLabel"), LabelUnits(form, "LabelUnits"),
        FiledUnitsLabel(form, "FiledUnitsLabel"), FiledStationsLabel(form, "FiledStationsLabel"),
        BlinkTimer(form, "BlinkTimer") {
    for (TextBox* box : {&Texts0, &Texts1, &Texts9, &Texts10})
      box->ReadOnly = true;
  }
  Label Labels0;
  TextBox Texts0; // facility
  Label Labels1;
  TextBox Texts1; // section
  Label Labels9;
  TextBox Texts9; // start
  Label Labels10;
  TextBox Texts10; // end
  Label LabelSetup, TestSetupLabel, LabelUnits, FiledUnitsLabel, FiledStationsLabel;
  Timer BlinkTimer;
};

} // namespace trekor
