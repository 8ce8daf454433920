// The session row: written when a file is made or opened for collection, and again at the end of each run.
#include "datafiles/DataFields.h"
#include "datafiles/DataFiles.h"
#include "state/DateText.h"
#include "values/Text.h"

namespace trekor {

void DataFiles::NewSession() {
  if (!rsSessions)
    return;
  RefillSession();
  rsSessions->AddNew();
  SaveSession();
}

void DataFiles::EditSession() {
  if (!rsSessions)
    return;
  RefillSession();
  rsSessions->MoveLast();
  rsSessions->Edit();
  SaveSession();
}

void DataFiles::RefillSession() {
  session.GUID = state.file.DataGuid;
  session.Program = CutText(state.folders.AppVersion, 8);
  session.Operator = CutText(state.people.OperatorName, 32);
  session.Electronics = CutText(state.command.HardwareName, 16);
  session.TestSetup = CutText(state.TestSetupName, 80);
  session.Units = CutText(state.options.OptionFileUnits, 16);
  session.Date = platform.clock.Now();
  session.StationMin = state.position.StationMinimum.FileValue();
  session.StationMax = state.position.StationMaximum.FileValue();
  session.StationDirection = state.position.DmiIncreasing ? 1 : -1;
  session.SegmentSize = state.position.StepSize.FileValue();
  RefillRoad(state.facility);
}

// All but SectionDirection, which keeps what was last read, and District and Class, whose texts nothing sets: they stay
// empty though the road's are known. Offices rely on it.
void DataFiles::RefillRoad(const FacilityRecord& road) {
  session.FacilityName = CutText(road.FacilityName, 80);
  session.FacilityCode = CutText(road.FacilityCode, 50);
  session.FacilityDirection = road.FacilityDirection;
  session.FacilityType = CutText(road.SectionType, 50);
  session.FacilityLanes = road.FacilityLanes;
  session.SectionName = CutText(road.SectionName, 80);
  session.SectionCode = CutText(road.SectionCode, 50);
  session.District = CutText(road.SessionDistrict, 80);
  session.Class = CutText(road.SessionClass, 50);
  session.Start = CutText(road.SectionStart, 50);
  session.End = CutText(road.SectionEnd, 50);
  session.Lane = CutText(road.Lane, 50);
  session.LaneNumber = CutText(road.LaneNumber, 16);
}

void DataFiles::SaveSession() {
  Recordset& row = *rsSessions;
  row.Set("Date", DateText(session.Date));
  for (const auto& [name, member] : SessionTexts)
    row.Set(name, session.*member);
  for (const auto& [name, member] : SessionNumbers)
    row.Set(name, session.*member);
  for (const auto& [name, member] : SessionStations)
    row.Set(name, session.*member);
  const FieldValue id = row.Get("SessionID");
  if (!row.Update())
    return; // another row's number would go into every station from now on
  row.MoveLast();
  session.SessionID = static_cast<std::int32_t>(id.Integer());
  state.file.SessionID = session.SessionID;
}

} // namespace trekor
