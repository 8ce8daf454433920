#include "options/OptionsForm.h"

#include <initializer_list>

namespace trekor {

namespace {

void Hold(Frame& frame, std::initializer_list<Control*> controls) {
  for (Control* c : controls)
    c->Container = &frame;
}

// In the order of the codes that are stored. The stored look words them in its language.
void FillLists(OptionsForm& f) {
  for (ComboBox* list : {&f.Combos0, &f.Combos1})
    for (const char* unit : {"km", "m", "miles", "ml.ft", "feet", "yards"})
      list->AddItem(unit);
  for (const char* format : {"Degrees", "Deg\u00B0Min", "Deg\u00B0MnSec"})
    f.Combos2.AddItem(format);
}

} // namespace

OptionsForm::OptionsForm() : Form("Options") {
  Hold(UnitsFrame, {&OptionMetric, &OptionUS, &Labels0, &Combos0, &Labels2, &Combos2});
  Hold(FileUnitsFrame, {&FileOptionMetric, &FileOptionUS, &Labels1, &Combos1});
  Hold(DrivingSideFrame, {&OptionRight, &OptionLeft});
  Hold(FilesFrame, {&TKRCheck, &MDBCheck});
  Hold(FeedbackFrame, {&ErrorTextCheck, &ErrorVoiceCheck, &WarningTextCheck, &WarningVoiceCheck, &AssistanceTextCheck,
                       &AssistanceVoiceCheck, &FeedbackFrameChild});
  Hold(FeedbackFrameChild, {&optDataColVoice, &optDataColTones});
  FillLists(*this);
  CmdOK.Default = true;
  FocusHome = &CmdOK; // Apply goes grey under the finger that has pressed it
}

} // namespace trekor
