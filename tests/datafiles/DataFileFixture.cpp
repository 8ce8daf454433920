#include "datafiles/DataFileFixture.h"

#include "datafiles/ExportSessions.h"
#include "state/Version.h"
#include "support/Places.h"

namespace trekor::tests {
namespace {

void Replace(std::string& text, const std::string& what, const std::string& by) {
  for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + by.size()))
    text.replace(at, what.size(), by);
}

} // namespace

void MakeTemplate(FakeDrives& drives, const std::string& name, const std::string& path) {
  MakeDatabase(drives, path, TemplateText(name));
}

std::string Expected(const std::string& name) {
  std::string text = BytesOf(SourcePlace("/tests/datafiles/expected/") + name);
  Replace(text, "@VERSION@", FileFormat(50 + VersionMajor + VersionMinor / 100.0, "#0.00"));
  Replace(text, "@REVISION@", std::to_string(VersionRevision));
  return text;
}

Job::Job() {
  FillFolders(machine, state.folders);
  machine.drives.MakeFolders("D:\\Data");
  MakeTemplate(machine.drives, "DataFile", "C:\\Veldmark\\Trekor\\MDB\\DATAfile.mdb");
  state.file.DataPath = "D:\\Data";
  state.position.StepSize.SetDefault(0.1);
}

ClassObservation& Job::Offer(int code, const std::string& name, const std::string& abbreviation, int mode, double max) {
  ClassObservation& obs = setup.AddObservation();
  obs.ObsCode = code;
  obs.DataTypeID = DataType::Integer;
  obs.RegModeCode = RegMode{mode};
  obs.SetMin(0);
  obs.SetMax(max);
  obs.SetObsNames("on screen", name, "scr", abbreviation);
  obs.SetObsIcon("RUT.PNG");
  return obs;
}

bool Job::Create(const std::string& name) {
  state.file.DataName = name;
  return files.CreateDataFile(setup);
}

void Job::Begin(const std::string& name) {
  Offer(5, "Crack", "C", 1);
  EXPECT_TRUE(Create(name));
}

void Job::Fix(double latitude, double longitude, double height, int status, int satellites) {
  next.fix = {0, latitude, longitude, static_cast<float>(height), status, satellites};
}

std::int32_t Job::Stand(const std::string& station, RowKind kind) {
  next.StationType = kind;
  next.FileStation = TextToDouble(StationDigits(station));
  machine.clock.Advance(1000);
  next.Time = machine.clock.Now();
  next.fix.GpsTime = next.Time.hour * 10000 + next.Time.minute * 100 + next.Time.second;
  return files.AddStation(next);
}

void Job::Value(std::int32_t from, std::int32_t to, int code, const std::string& text, int parCode) {
  files.AddRegistration(from, to, code, parCode, text);
}

std::string Job::Comma(std::int32_t sessionID) {
  state.file.AsciiName = state.file.DataName;
  comma.WriteCommaFile(sessionID, true, setup.ObsCount());
  std::string text = machine.drives.Read("D:\\Data\\" + state.file.AsciiName + ".TKR");
  EXPECT_TRUE(text.empty() || text.find('\n') == text.find("\r\n") + 1) << "lines end with CR LF";
  Replace(text, "\r\n", "\n");
  return text;
}

std::string Job::Records(const std::string& text) {
  const std::string lastOfHead = "5040,1,0,0,0,1,0,0,0,1\n";
  const std::size_t at = text.find(lastOfHead);
  return at == std::string::npos ? "no head" : text.substr(at + lastOfHead.size());
}

std::string Job::Ask(const std::string& query) {
  std::string rows = files.database ? RowsOf(*files.database, query) : "no file open\n";
  return rows.substr(0, rows.size() - 1);
}

std::string LineWith(const std::string& text, const std::string& what) {
  const std::size_t at = text.find(what), begin = text.rfind('\n', at) + 1;
  return at == std::string::npos ? "no " + what : text.substr(begin, text.find('\n', at) + 1 - begin);
}

} // namespace trekor::tests
