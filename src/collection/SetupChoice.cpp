#include "collection/SetupChoice.h"

#include "values/NumberText.h"

#include <utility>
#include <vector>

namespace trekor {

namespace {
constexpr const char* NoSetupID = "-1";
} // namespace

void SetupChoice::Load_TestSetupNames() {
  auto& form = ctx.form;
  if (!FillLists())
    return ctx.rooms.setupDatabase.TellCannotOpen();
  if (form.cboSetupID.ListCount() == 0)
    return ChooseNone();
  form.cboTestSetupNames.SetEnabled(true);
  const int running = Listed(form.lblSetupID.Caption());
  Select(running < 0 ? 0 : running);
  // The hidden label is kept with the form's looks, so at a start it names a setup that is not loaded yet.
  if (running < 0 || !chosen || std::to_string(ctx.State().TestSetupID) != form.lblSetupID.Caption())
    Choose();
}

bool SetupChoice::FillLists() {
  Recordset* names = ctx.rooms.setupDatabase.rsSetupNames.get();
  std::vector<std::pair<std::string, std::int64_t>> setups;
  if (names != nullptr)
    for (names->Requery(); !names->Eof(); names->MoveNext())
      setups.emplace_back(names->Get("SetupName").Text(), names->Get("SetupID").Integer());
  if (names != nullptr && names->Failed())
    return false;
  const WhileSet quiet(filling);
  ctx.form.cboTestSetupNames.Clear();
  ctx.form.cboSetupID.Clear();
  for (const auto& [name, id] : setups) {
    ctx.form.cboTestSetupNames.AddItem(name);
    ctx.form.cboSetupID.AddItem(std::to_string(id));
  }
  return true;
}

int SetupChoice::Listed(const std::string& id) const {
  for (int i = 0; i < ctx.form.cboSetupID.ListCount(); ++i)
    if (ctx.form.cboSetupID.List(i) == id)
      return i;
  return -1;
}

void SetupChoice::Select(int index) {
  const WhileSet quiet(filling);
  ctx.form.cboTestSetupNames.SetListIndex(index);
  ctx.form.cboSetupID.SetListIndex(index);
}

void SetupChoice::ChooseNone() {
  ctx.form.cboTestSetupNames.AddItem("n/a");
  ctx.form.cboSetupID.AddItem(NoSetupID);
  ctx.form.cboTestSetupNames.SetEnabled(false);
  Select(0);
  Choose();
}

// The form's stored look fills the list too, before there are keys and columns; the load chooses when they are there.
void SetupChoice::cboTestSetupNames_Click() {
  if (!filling && !ctx.fields.loading && ctx.form.cboTestSetupNames.ListIndex() >= 0)
    Choose();
}

// A setup that can't be read is not one without columns: the one before goes on.
void SetupChoice::Choose() {
  auto& form = ctx.form;
  const std::int32_t before = ctx.State().TestSetupID;
  keyPictures.RemoveSetup();
  Select(form.cboTestSetupNames.ListIndex());
  ctx.State().TestSetupID = static_cast<std::int32_t>(Val(form.cboSetupID.Text()));
  const bool read = ctx.rooms.setup.Load_TestSetup();
  if (read) {
    chosen = true;
    form.lblSetupID.SetCaption(form.cboSetupID.Text());
    ctx.State().TestSetupName = form.cboTestSetupNames.Text();
  } else {
    ctx.State().TestSetupID = before;
    Select(chosen ? Listed(std::to_string(before)) : -1);
  }
  grids.Setup_Grid();
  grids.Format_GridHeader();
  feedback.LoadSounds();
  keyPictures.AddSetup();
  if (!read)
    ctx.rooms.setupDatabase.TellCannotOpen();
}

void SetupChoice::Lock_SetupControls() {
  EnableControls(false);
}

void SetupChoice::Unlock_SetupControls() {
  EnableControls(true);
}

void SetupChoice::EnableControls(bool on) {
  ctx.form.cboTestSetupNames.SetEnabled(on);
  ctx.form.labels9.SetEnabled(on);
  ctx.form.mnuExport.SetEnabled(on && ctx.form.mnuExport.OnClick); // not before it does something
}

} // namespace trekor
