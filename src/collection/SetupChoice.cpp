#include "collection/SetupChoice.h"

#include "values/NumberText.h"

namespace trekor {

namespace {
constexpr const char* NoSetupID = "-1";
} // namespace

void SetupChoice::Load_TestSetupNames() {
  auto& form = ctx.form;
  Fill_Lists();
  if (form.cboSetupID.ListCount() == 0)
    return Choose_None();
  form.cboTestSetupNames.SetEnabled(true);
  const int running = Listed(form.lblSetupID.Caption());
  Select(running < 0 ? 0 : running);
  // The hidden label is kept with the form's looks, so at a start it names a setup that is not loaded yet.
  if (running < 0 || std::to_string(ctx.state().TestSetupID) != form.lblSetupID.Caption())
    Choose();
}

void SetupChoice::Fill_Lists() {
  const WhileSet quiet(filling);
  ctx.form.cboTestSetupNames.Clear();
  ctx.form.cboSetupID.Clear();
  Recordset* names = ctx.rooms.setupDatabase.rsSetupNames.get();
  if (names == nullptr)
    return;
  names->Requery();
  for (; !names->Eof(); names->MoveNext()) {
    ctx.form.cboTestSetupNames.AddItem(names->Get("SetupName").Text());
    ctx.form.cboSetupID.AddItem(std::to_string(names->Get("SetupID").Integer()));
  }
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

void SetupChoice::Choose_None() {
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

void SetupChoice::Choose() {
  auto& form = ctx.form;
  keys.RemoveSetup();
  Select(form.cboTestSetupNames.ListIndex());
  form.lblSetupID.SetCaption(form.cboSetupID.Text());
  ctx.state().TestSetupID = static_cast<std::int32_t>(Val(form.cboSetupID.Text()));
  ctx.state().TestSetupName = form.cboTestSetupNames.Text();
  ctx.rooms.setup.Load_TestSetup();
  grids.Setup_Grid();
  grids.Format_GridHeader();
  feedback.LoadSounds();
  keys.AddSetup();
}

void SetupChoice::Lock_SetupControls() {
  Enable_Controls(false);
}

void SetupChoice::Unlock_SetupControls() {
  Enable_Controls(true);
}

void SetupChoice::Enable_Controls(bool on) {
  ctx.form.cboTestSetupNames.SetEnabled(on);
  ctx.form.labels9.SetEnabled(on);
  ctx.form.mnuExport.SetEnabled(on && ctx.form.mnuExport.OnClick); // not before it does something
}

} // namespace trekor
