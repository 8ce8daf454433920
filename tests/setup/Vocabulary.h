// A vocabulary database of the released layout in a temporary folder, and the room over it.
#pragma once

#include "setup/TestSetup.h"
#include "support/Databases.h"

#include <gtest/gtest.h>

namespace trekor::tests {

struct PictureForm : Form {
  PictureForm() : Form("Measurements") {}
  ImageList pictures{*this, "imlObsPicsUCaseKeys"};
};

class Vocabulary : public ::testing::Test {
protected:
  Vocabulary() {
    FillFolders(machine, state.folders);
    form.pictures.Add({"CRACK.PNG", "Crack.png", "C:\\Trekor\\Graphics\\Crack.png"});
    state.TestSetupID = 1;
  }

  std::unique_ptr<Database> Make(const std::string& path, const std::string& sql) {
    MakeDatabase(machine.drives, path, sql);
    return Database::Open(machine.drives.NativePath(path), OpenMode::Shared);
  }
  void OpenVocabulary() { database.ObsDB = Make(Working, TemplateText("Observations")); }

  // One item of folder 1 and its place in setup 1; its code is its id.
  struct Item {
    int id = 1, dataType = 1, position = 1, keyCode = -1;
    std::string min = "0", max = "3";
    int mode = 1, keying = 1;
  };
  void Add(const Item& i) { Add(i, i.id); }
  void Add(const Item& i, int code) {
    const auto list = [](std::initializer_list<int> numbers) {
      std::string text;
      for (const int n : numbers)
        text += (text.empty() ? "" : ",") + std::to_string(n);
      return text;
    };
    Run("BEGIN; INSERT INTO Observations(ObsParID,LanguageID,ParCode,ObsCode,DataType,RegModeCode,KeyingCode,Min,Max,"
        "ParNameDisp) VALUES(" +
        list({i.id, 1, 7, code, i.dataType, i.mode, i.keying}) + "," + i.min + "," + i.max +
        ",'Left'); INSERT INTO ObsLinguistic(LanguageID,ObsCode,ObsNameDisp,ObsAbrvFile,ObsIcon) VALUES(" +
        list({1, code}) + ",'Item " + std::to_string(i.id) + "','I" + std::to_string(i.id) + "','crack.png');" +
        "INSERT INTO Setups(SetupID,ObsParID,GridPosition,KeyCode) VALUES(" + list({1, i.id, i.position, i.keyCode}) +
        "); COMMIT");
  }
  void Run(const std::string& sql) { ASSERT_TRUE(database.ObsDB->Execute(sql)) << database.ObsDB->LastError(); }
  std::string StoredKeys() { return RowsOf(*database.ObsDB, "SELECT KeyCode FROM Setups ORDER BY SetupID, ObsParID"); }

  static constexpr const char* Working = "C:\\Veldmark\\Trekor\\MDB\\Observations.mdb";
  static constexpr const char* Template = "C:\\Trekor\\Observations.vdb";
  FakePlatform machine;
  ProgramState state;
  PictureForm form;
  SetupDatabase database{state, machine.platform};
  TestSetup setup{state, database, form.pictures};
};

} // namespace trekor::tests
