// A vocabulary database of the released layout in a temporary folder, and the room over it.
#pragma once

#include "setup/TestSetup.h"
#include "support/Databases.h"

#include <string>

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
    database.ObsDB->Begin();
    const std::string id = std::to_string(i.id), c = std::to_string(code);
    Run("INSERT INTO Observations(ObsParID,LanguageID,ObsCode,ParCode,ParNameDisp,DataType,Min,Max,RegModeCode,"
        "KeyingCode) VALUES(" +
        id + ",1," + c + ",7,'Left'," + std::to_string(i.dataType) + "," + i.min + "," + i.max + "," +
        std::to_string(i.mode) + "," + std::to_string(i.keying) + ")");
    Run("INSERT INTO ObsLinguistic(LanguageID,ObsCode,ObsNameDisp,ObsAbrvFile,ObsIcon) VALUES(1," + c + ",'Item " + id +
        "','I" + id + "','crack.png')");
    Run("INSERT INTO Setups(SetupID,ObsParID,GridPosition,KeyCode) VALUES(1," + id + "," + std::to_string(i.position) +
        "," + std::to_string(i.keyCode) + ")");
    database.ObsDB->Commit();
  }
  void Run(const std::string& sql) { ASSERT_TRUE(database.ObsDB->Execute(sql)) << database.ObsDB->LastError(); }
  int StoredKey(int obsParID) {
    const auto row = database.ObsDB->OpenQuery("SELECT * FROM Setups WHERE ObsParID=" + std::to_string(obsParID));
    return static_cast<int>(row->Get("KeyCode").Integer());
  }

  static constexpr const char* Working = "C:\\Veldmark\\Trekor\\MDB\\Observations.mdb";
  static constexpr const char* Template = "C:\\Trekor\\Observations.vdb";
  FakePlatform machine;
  ProgramState state;
  PictureForm form;
  SetupDatabase database{state, machine.platform};
  TestSetup setup{state, database, form.pictures};
};

} // namespace trekor::tests
