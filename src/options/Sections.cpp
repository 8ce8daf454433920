#include "options/Sections.h"

#include "dbupdate/UpdateDatabase.h"
#include "values/Text.h"

namespace trekor {

namespace {

// The codes of a heading, as data files hold them. Files from elsewhere may hold others: those have no word.
constexpr int NoHeading = 0, North = 1, South = 2, East = 3, West = 4;

struct NumberedField {
  std::size_t number;
  const char* name;
};

// Fixed: the numbers are those of the forms' Texts, the names those of the network databases in the field.
constexpr NumberedField FieldsInUse[] = {
    {0, "FacilityName"},   {1, "SectionName"},  {9, "Start"},     {10, "End"},     {11, "Lane"},
    {13, "FacilityCode"},  {14, "SectionCode"}, {15, "District"}, {16, "Type"},    {19, "LaneNumber"},
    {20, "Layer1Modulus"}, {21, "Layer1"},      {22, "Layer2"},   {23, "Layer3"},  {24, "Layer1Temperature"},
    {25, "FixRigid"},      {26, "RigidLayer"},  {28, "Class"},    {29, "Heading"},
};

std::array<std::string, 101> NumberedNames() {
  std::array<std::string, 101> names;
  for (const NumberedField& field : FieldsInUse)
    names.at(field.number) = field.name;
  return names;
}

} // namespace

int HeadingCode(std::string_view heading) {
  switch (heading.empty() ? ' ' : Upper(heading)[0]) {
  case 'N':
    return North;
  case 'S':
    return South;
  case 'E':
    return East;
  case 'W':
    return West;
  default:
    return NoHeading;
  }
}

std::string HeadingName(int code) {
  switch (code) {
  case North:
    return "North";
  case South:
    return "South";
  case East:
    return "East";
  case West:
    return "West";
  default:
    return "";
  }
}

Sections::Sections(ProgramState& programState, Platform& seams, SocketProp& link)
    : state(programState), platform(seams), socket(link) {}

bool Sections::LoadSections() {
  CloseSections();
  UpdateResult update = UpdateDatabase(state.folders, platform, "Sections", state.folders.SharedMdbFolder, "");
  if (update.programEnds)
    return false;
  state.versions.Sections = update.version;
  state.facility.SectionsPath = state.folders.SharedMdbFolder + "\\Sections.mdb";
  Use(std::move(update.database));
  return true;
}

// No operation reads a row: facility and section come from the link and the operator. The table is only kept open.
void Sections::ReopenSections() {
  CloseSections();
  Use(Database::Open(platform.drives.NativePath(state.facility.SectionsPath), OpenMode::Shared));
}

void Sections::Use(std::unique_ptr<Database> database) {
  networkDatabase = std::move(database);
  if (networkDatabase)
    rsSections = networkDatabase->OpenTable("Sections");
}

void Sections::CloseSections() {
  rsSections.reset();
  networkDatabase.reset();
}

void Sections::SetFacilityName(const std::string& text) {
  state.facility.FacilityName = text;
  socket.SendData("FACILITY NAME " + text);
}

void Sections::SetSectionName(const std::string& text) {
  state.facility.SectionName = text;
  socket.SendData("SECTION NAME " + text);
}

void Sections::SetSectionStart(const std::string& text) {
  state.facility.SectionStart = text;
  socket.SendData("SECTION START " + text);
}

void Sections::SetSectionEnd(const std::string& text) {
  state.facility.SectionEnd = text;
  socket.SendData("SECTION END " + text);
}

const std::array<std::string, 101>& Sections::SectionFields() {
  static const std::array<std::string, 101> names = NumberedNames();
  return names;
}

} // namespace trekor
