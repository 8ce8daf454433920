// The session row: written when a file is made or opened for collection, and again at the end of each run.
#include "datafiles/DataFiles.h"
#include "options/Sections.h"
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

// All but SectionDirection, which keeps what was last read, and District and Class, whose texts nothing sets: they stay
// empty though the road's are known. Offices rely on it.
void DataFiles::RefillSession() {
  const FacilityRecord& road = state.facility;
  session.GUID = state.file.DataGuid;
  session.Program = CutText(state.folders.AppVersion, 8);
  session.Operator = CutText(state.people.OperatorName, 32);
  session.Electronics = CutText(state.command.HardwareName, 16);
  session.TestSetup = CutText(state.TestSetupName, 80);
  session.Units = CutText(state.options.OptionFileUnits, 16);
  session.Date = platform.clock.Now();
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
  session.StationMin = state.position.StationMinimum.FileValue();
  session.StationMax = state.position.StationMaximum.FileValue();
  session.StationDirection = state.position.DmiIncreasing ? 1 : -1;
  session.SegmentSize = state.position.StepSize.FileValue();
}

void DataFiles::SaveSession() {
  Recordset& row = *rsSessions;
  row.Set("GUID", session.GUID);
  row.Set("Program", session.Program);
  row.Set("Operator", session.Operator);
  row.Set("Electronics", session.Electronics);
  row.Set("TestSetup", session.TestSetup);
  row.Set("Units", session.Units);
  row.Set("Date", DateText(session.Date));
  row.Set("FacilityName", session.FacilityName);
  row.Set("FacilityCode", session.FacilityCode);
  row.Set("FacilityDirection", session.FacilityDirection);
  row.Set("FacilityType", session.FacilityType);
  row.Set("FacilityLanes", session.FacilityLanes);
  row.Set("SectionName", session.SectionName);
  row.Set("SectionCode", session.SectionCode);
  row.Set("SectionDirection", session.SectionDirection);
  row.Set("District", session.District);
  row.Set("Class", session.Class);
  row.Set("Start", session.Start);
  row.Set("End", session.End);
  row.Set("Lane", session.Lane);
  row.Set("LaneNumber", session.LaneNumber);
  row.Set("StationMin", session.StationMin);
  row.Set("StationMax", session.StationMax);
  row.Set("StationDirection", session.StationDirection);
  row.Set("SegmentSize", session.SegmentSize);
  const FieldValue id = row.Get("SessionID");
  if (!row.Update())
    return; // another row's number would go into every station from now on
  row.MoveLast();
  session.SessionID = static_cast<std::int32_t>(id.Integer());
  state.file.SessionID = session.SessionID;
}

void DataFiles::ReadSession() {
  if (!rsSessions)
    return;
  const Recordset& row = *rsSessions;
  const auto text = [&row](const char* field) { return row.Get(field).Text(); };
  const auto whole = [&row](const char* field) { return static_cast<int>(row.Get(field).Integer()); };
  session.SessionID = whole("SessionID");
  session.GUID = text("GUID");
  session.Program = text("Program");
  session.Operator = text("Operator");
  session.Electronics = text("Electronics");
  session.TestSetup = text("TestSetup");
  session.Units = text("Units");
  session.Date = ReadDate(text("Date"));
  session.FacilityName = text("FacilityName");
  session.FacilityCode = text("FacilityCode");
  session.FacilityDirection = whole("FacilityDirection");
  session.FacilityType = text("FacilityType");
  session.FacilityLanes = whole("FacilityLanes");
  session.SectionName = text("SectionName");
  session.SectionCode = text("SectionCode");
  session.SectionDirection = whole("SectionDirection");
  session.SectionHeading = HeadingName(session.SectionDirection);
  session.District = text("District");
  session.Class = text("Class");
  session.Start = text("Start");
  session.End = text("End");
  session.Lane = text("Lane");
  session.LaneNumber = text("LaneNumber");
  session.StationMin = row.Get("StationMin").Number();
  session.StationMax = row.Get("StationMax").Number();
  session.StationDirection = whole("StationDirection");
  session.SegmentSize = row.Get("SegmentSize").Number();
}

} // namespace trekor
