#include "datafiles/PreviewPane.h"

namespace trekor {

PreviewPane::PreviewPane(const ProgramState& programState, Drives& allDrives, SessionBoxes& sessionBoxes,
                         Label* dateLabel)
    : state(programState), drives(allDrives), boxes(sessionBoxes), date(dateLabel),
      unitLabels(sessionBoxes.FiledUnitsLabel, sessionBoxes.FiledStationsLabel) {
  boxes.BlinkTimer.SetInterval(BlinkMilliseconds);
  boxes.BlinkTimer.OnTimer = [this] { unitLabels.Blink(); };
}

bool PreviewPane::PreviewDataFile(const std::string& path) {
  SessionPreview session;
  const bool ok = trekor::PreviewDataFile(drives.NativePath(path), session);
  if (ok)
    Show(session);
  else
    ClearPreview();
  return ok;
}

void PreviewPane::Show(const SessionPreview& session) {
  if (date)
    date->SetCaption(session.Date);
  boxes.Texts0.SetText(session.FacilityName);
  boxes.Texts1.SetText(session.SectionName);
  boxes.Texts9.SetText(session.Start);
  boxes.Texts10.SetText(session.End);
  boxes.TestSetupLabel.SetCaption(session.TestSetup);
  ShowSessionUnits(session);
}

// The option may be a text of its own; both are compared as they were stored.
void PreviewPane::ShowSessionUnits(const SessionPreview& session) {
  unitLabels.Show({session.Units == "US", session.StationUnit, session.Units != state.options.OptionFileUnits,
                   session.StationUnit != state.units.FileStationUnit});
}

void PreviewPane::ClearPreview() {
  if (date)
    date->SetCaption("");
  for (TextBox* box : {&boxes.Texts0, &boxes.Texts1, &boxes.Texts9, &boxes.Texts10})
    box->SetText("");
  boxes.TestSetupLabel.SetCaption("");
  unitLabels.Clear();
}

} // namespace trekor
