// The options and the network over the released templates.
#pragma once

#include "options/OptionsDatabase.h"
#include "options/Sections.h"

#include "support/Databases.h"
#include "support/ReleasedTree.h"

#include <gtest/gtest.h>

namespace trekor::tests {

using Strings = std::vector<std::string>;

class OptionsTest : public testing::Test {
protected:
  static constexpr const char *Template = "C:\\Trekor\\Software.vdb",
                              *Software = "C:\\Veldmark\\Trekor\\MDB\\Software.mdb";

  OptionsTest() {
    FillFolders(machine, state.folders);
    for (const std::string name : {"Software", "Messages", "Sections"})
      MakeDatabase(machine.drives, "C:\\Trekor\\" + name + ".vdb", TemplateText(name));
  }
  std::unique_ptr<Database> Open(const std::string& path, OpenMode mode = OpenMode::Shared) {
    return Database::Open(machine.drives.NativePath(path), mode);
  }
  void Execute(const std::string& path, const std::string& sql) { ASSERT_TRUE(Open(path)->Execute(sql)) << sql; }
  // All of them in one line, the marks as a letter each.
  static std::string All(const ProgramState& s) {
    const OptionState& o = s.options;
    const LocalTime& t = o.OptionsDate;
    std::string all =
        o.OptionUnits + (s.units.UnitsUS ? "=US " : " ") + o.OptionFileUnits + (s.units.FileUnitsUS ? "=US" : "");
    for (const std::int32_t n : {s.units.StationUnit, s.units.FileStationUnit, o.DrivingSide, o.GeographicFormat,
                                 o.TrayColor, t.year, t.month, t.day, t.hour, t.minute, t.second})
      all += " " + std::to_string(n);
    all += " ";
    for (const bool on : {o.KeepMdb, o.WriteAscii, o.ErrorText, o.ErrorVoice, o.WarningText, o.WarningVoice,
                          o.AssistanceText, o.AssistanceVoice, o.DataColVoice})
      all += on ? 'x' : '.';
    return all + " " + o.OptionsUser;
  }

  FakePlatform machine;
  ProgramState state;
  TextDatabase texts{state, machine.platform};
  MessageCatalogue messages{state, machine.platform, texts};
  OptionsDatabase options{state, machine.platform, messages};
  Form mainForm{"Measurements"};
  SocketProp socket{state, machine.platform, texts, mainForm};
  Sections sections{state, machine.platform, socket};
};

} // namespace trekor::tests
