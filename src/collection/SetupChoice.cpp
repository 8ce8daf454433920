#include "collection/SetupChoice.h"

#include "collection/RunStage.h"
#include "values/NumberText.h"

#include <utility>
#include <vector>

namespace trekor {

namespace {
constexpr const char* NoSetupID = "-1";
} // namespace

void SetupChoice::Load_TestSetupNames() {
  if (!FillLists())
    return setupDatabase.TellCannotOpen();
  if (controls.cboSetupID.ListCount() == 0)
    return ChooseNone();
  controls.cboTestSetupNames.SetEnabled(true);
  const int running = Listed(controls.lblSetupID.Caption());
  Select(running < 0 ? 0 : running);
  // The hidden label is stored with the form's look, so at a start it names a setup that is not loaded yet.
  if (running < 0 || !chosen || std::to_string(state.TestSetupID) != controls.lblSetupID.Caption())
    Choose();
}

bool SetupChoice::FillLists() {
  Recordset* names = setupDatabase.rsSetupNames.get();
  std::vector<std::pair<std::string, std::int64_t>> setups;
  if (names != nullptr)
    for (names->Requery(); !names->Eof(); names->MoveNext())
      setups.emplace_back(names->Get("SetupName").Text(), names->Get("SetupID").Integer());
  if (names != nullptr && names->Failed())
    return false;
  const WhileSet quiet(filling);
  controls.cboTestSetupNames.Clear();
  controls.cboSetupID.Clear();
  for (const auto& [name, id] : setups) {
    controls.cboTestSetupNames.AddItem(name);
    controls.cboSetupID.AddItem(std::to_string(id));
  }
  return true;
}

int SetupChoice::Listed(const std::string& id) const {
  for (int i = 0; i < controls.cboSetupID.ListCount(); ++i)
    if (controls.cboSetupID.List(i) == id)
      return i;
  return -1;
}

void SetupChoice::Select(int index) {
  const WhileSet quiet(filling);
  controls.cboTestSetupNames.SetListIndex(index);
  controls.cboSetupID.SetListIndex(index);
}

void SetupChoice::ChooseNone() {
  controls.cboTestSetupNames.AddItem("n/a");
  controls.cboSetupID.AddItem(NoSetupID);
  controls.cboTestSetupNames.SetEnabled(false);
  Select(0);
  Choose();
}

void SetupChoice::cboTestSetupNames_Click() {
  if (!filling && controls.cboTestSetupNames.ListIndex() >= 0)
    Choose();
}

// When a setup can't be read, the one before stays.
void SetupChoice::Choose() {
  const std::int32_t before = state.TestSetupID;
  views.keyPictures.RemoveSetup();
  Select(controls.cboTestSetupNames.ListIndex());
  state.TestSetupID = static_cast<std::int32_t>(Val(controls.cboSetupID.Text()));
  const bool read = setup.Load_TestSetup();
  if (read) {
    chosen = true;
    controls.lblSetupID.SetCaption(controls.cboSetupID.Text());
    state.TestSetupName = controls.cboTestSetupNames.Text();
  } else {
    state.TestSetupID = before;
    Select(chosen ? Listed(std::to_string(before)) : -1);
  }
  views.gridHead.Setup_Grid();
  views.gridHead.Format_GridHeader();
  views.feedback.LoadSounds();
  views.keyPictures.AddSetup();
  if (!read)
    setupDatabase.TellCannotOpen();
}

} // namespace trekor
