// The head of the comma file: program, people, units, the road, the observations, and the template records.
#include "datafiles/CommaRecords.h"
#include "state/Version.h"
#include "values/Text.h"

#include <algorithm>

namespace trekor {
namespace {

constexpr const char* ProductName = "Trekor";
constexpr int LeastObservations = 16; // readers rely on records 5231 to 5246, used or not

} // namespace

bool CommaRecords::WriteCommaHeader(const SessionRow& session, const Database& database) {
  WriteVersion(session);
  out.Raw("5002,").Quoted("TREKOR", 8).Comma().Quoted(sources.testSetupName, 8).Comma().Quoted("STANDARD").End();
  out.Raw("5003,").Quoted(sources.people.OperatorName, 8).End(); // who writes, not who collected
  WriteUnits();
  WriteDate(session);
  WriteStations();
  WriteRoad(session);
  const bool read = WriteObservations(session, database);
  WriteTemplates();
  return read;
}

// 5001,51.00,1,30,"Trekor          ",0,"0123456789ABCDEF0123456789ABCDEF"
// version + 50, 1, header count, product, revision, GUID. The 50 tells readers that the file is from this program and
// not from an older one. The header count is that of the file written before, as the observations of this one are
// counted further down; readers rely on it.
void CommaRecords::WriteVersion(const SessionRow& session) {
  const double version = VersionMajor + VersionMinor / 100.0 + 50;
  out.Raw("5001,").Fixed(version, NumberPattern("#0.00")).Raw(",1,").Whole(std::max(table.CommaObsCount + 14, 30));
  out.Comma().Quoted(ProductName, 16).Comma().Whole(VersionRevision).Comma().Quoted(session.GUID).End();
}

// 5010,0,0,0,0,0,0,0,3,1,0,0,0,0,0,1,0,0,0,0,0,"SI","kilometers"
void CommaRecords::WriteUnits() {
  FileUnitWord(sources.units.FileStationUnit, table.unit);
  const bool us = sources.units.FileUnitsUS;
  out.Raw(us ? "5010,1,0,1,0,1,1,0," : "5010,0,0,0,0,0,0,0,").Raw(table.unit.FileUnitCode);
  out.Raw(us ? ",1,1,1,1,0,0,1,0,0,0,0,0," : ",1,0,0,0,0,0,1,0,0,0,0,0,");
  out.Quoted(us ? "US" : "SI").Comma().Quoted(table.unit.FileUnitName).End();
}

// 5011,0,1,2024,05,06,07,08,0,"Non",000
// year, month, day, hour, minutes of the session's last saving
void CommaRecords::WriteDate(const SessionRow& session) {
  const NumberPattern four("0000"), two("00");
  const LocalTime& t = session.Date;
  out.Raw("5011,0,1,").Bare(t.year, four);
  for (const int part : {t.month, t.day, t.hour, t.minute})
    out.Comma().Bare(part, two);
  out.Raw(",0,").Quoted("Non").Raw(",000").End();
}

// 5023,3,0,0,  12.500,  12.300,  12.500,  12.400,   0.100
// last step, lowest and highest station, the step before the last, step length
void CommaRecords::WriteStations() {
  out.Raw("5023,3,0,0");
  const Positions& p = sources.position;
  for (const Station* station : {&p.KeyStation, &p.StationMinimum, &p.StationMaximum, &p.PreviousStation, &p.StepSize})
    out.Comma().Fixed(station->FileValue(), StationFormat);
  out.End();
}

// 5030,"J. Miller"
// 5031,"Ring Road","E45","Motorway",""
// 5032,"North","S1","Bridge","Exit 12","Right","1"
void CommaRecords::WriteRoad(const SessionRow& s) {
  out.Raw("5030,").Quoted(CutText(s.Operator, 32)).End();
  out.Raw("5031,").Quoted(s.FacilityName).Comma().Quoted(s.FacilityCode);
  out.Comma().Quoted(s.FacilityType).Comma().Quoted(s.Class).End();
  out.Raw("5032,").Quoted(s.SectionName).Comma().Quoted(s.SectionCode).Comma().Quoted(s.Start);
  out.Comma().Quoted(s.End).Comma().Quoted(s.Lane).Comma().Quoted(s.LaneNumber).End();
}

// 5231,"Rutting ", 17,2,"Rut ",0,3,    0.00,"Rutting             "
// name, code, registration mode, abbreviation, lowest, highest value, a constant, the longer name
bool CommaRecords::WriteObservations(const SessionRow& session, const Database& database) {
  const NumberPattern recordNumber("0000");
  int written = 0;
  Cursor rows(database, "SELECT ObsCode, ObsName, RegModeCode, ObsAbrv, Min, Max FROM Observations WHERE SessionID=?1"
                        " ORDER BY ObsParID");
  rows.Bind(1, session.SessionID);
  while (rows.Step()) {
    const auto i = static_cast<std::size_t>(++written);
    table.Hold(i);
    table.ObsCodes[i] = static_cast<std::int16_t>(rows.Integer(0));
    table.ObsNames[i] = rows.TextView(1);
    out.Bare(5230 + written, recordNumber).Comma().Quoted(table.ObsNames[i], 8).Comma();
    out.Fixed(table.ObsCodes[i], code).Comma().Whole(rows.Integer(2)).Comma().Quoted(rows.TextView(3), 4).Comma();
    out.Bare(rows.Real(4), digit).Comma().Bare(rows.Real(5), digit).Raw(",    0.00,").Quoted(table.ObsNames[i], 20);
    out.End();
  }
  table.CommaObsCount = written; // the fillers below do not count
  while (written < LeastObservations) {
    table.ObsCodes[static_cast<std::size_t>(++written)] = 0;
    out.Bare(5230 + written, recordNumber).Raw(",\"NA      \",  0,9,\"N.A.\",0,0,    0.00,").Quoted("", 20).End();
  }
  return !rows.Failed();
}

// 5301,  12.400,  12.500,,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0
// Only these template records have the empty field before the digits; data records of the same number do not.
void CommaRecords::WriteTemplates() {
  for (const char* number : {"5301,", "5302,", "5303,", "5304,"}) {
    out.Raw(number).Fixed(sources.position.PreviousStation.FileValue(), StationFormat).Comma();
    out.Fixed(sources.position.KeyStation.FileValue(), StationFormat).Raw(",,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0").End();
  }
  out.Raw("5040,1,0,0,0,1,0,0,0,1").End();
}

} // namespace trekor
