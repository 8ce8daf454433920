// A vocabulary database of the released layout in a temporary folder, and the room over it.
#pragma once

#include "setup/TestSetup.h"
#include "support/FakePlatform.h"

#include <fstream>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

namespace trekor::tests {

inline std::string TemplateText(const std::string& name) {
  std::ifstream file(std::string(TREKOR_SOURCE_DIR) + "/templates/" + name);
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

struct PictureForm : Form {
  PictureForm() : Form("Measurements") {}
  ImageList pictures{*this, "imlObsPicsUCaseKeys"};
};

class Vocabulary : public ::testing::Test {
protected:
  Vocabulary() {
    machine.drives.MakeFolders("C:\\Trekor");
    machine.drives.MakeFolders("C:\\Veldmark\\Trekor\\MDB");
    state.folders.AppPath = "C:\\Trekor";
    state.folders.RootFolder = "C:\\Veldmark\\Trekor";
    state.folders.MdbFolder = "C:\\Veldmark\\Trekor\\MDB";
    form.pictures.Add({"CRACK.PNG", "Crack.png", "C:\\Trekor\\Graphics\\Crack.png"});
    state.TestSetupID = 1;
  }

  std::unique_ptr<Database> Make(const std::string& path, const std::string& sql) {
    const std::string native = machine.drives.NativePath(path);
    EXPECT_TRUE(Database::Create(native, ";LANGID=0x0409;CP=1252;COUNTRY=0"));
    std::unique_ptr<Database> made = Database::Open(native, OpenMode::Shared);
    // One transaction, as each statement alone would wait for the disk.
    EXPECT_TRUE(made && made->Begin() && made->Execute(sql) && made->Commit());
    return made;
  }
  void OpenVocabulary() { database.ObsDB = Make(Working, TemplateText("Observations.sql")); }

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
