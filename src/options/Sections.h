// The current facility (road) and section (stretch of it), and the network database behind them.
#pragma once

#include "link/SocketProp.h"
#include "platform/Platform.h"
#include "state/ProgramState.h"
#include "store/Database.h"
#include "store/Recordset.h"

#include <array>
#include <memory>
#include <string>
#include <string_view>

namespace trekor {

int HeadingCode(std::string_view heading); // first letter: N 1, S 2, E 3, W 4, else 0
std::string HeadingName(int code);         // "North", "South", "East", "West", else ""

class Sections {
public:
  Sections(ProgramState& state, Platform& platform, SocketProp& socket);
  bool LoadSections();   // false: the program ends
  void ReopenSections(); // after SET NETWORKDB
  void CloseSections();
  // Stores the text in the state and sends it on the link.
  void SetFacilityName(const std::string& text);
  void SetSectionName(const std::string& text);
  void SetSectionStart(const std::string& text);
  void SetSectionEnd(const std::string& text);
  // Field names by number; the numbers are also the indexes of the Texts of the forms. "" where no field is. Kept for
  // the forms that show a section: none is built yet.
  static const std::array<std::string, 101>& SectionFields();

private:
  void Use(std::unique_ptr<Database> database);

  ProgramState& state;
  Platform& platform;
  SocketProp& socket;
  std::unique_ptr<Database> networkDatabase;
  std::unique_ptr<Recordset> rsSections;
};

} // namespace trekor
