#include "collection/KeyPictures.h"

#include "collection/Grids.h"
#include "values/KeyCodes.h"

namespace trekor {

namespace {
constexpr int SpaceBar = 32;
constexpr const char* NoCaption = "[ ]";
constexpr int TabKeyboard = 1, TabKeypad = 2;
} // namespace

KeyPictures::KeyPictures(RunContext& context)
    : ctx(context), KeyBoardClass(tables, context.rooms.setup), KeyPadClass(tables, context.rooms.setup),
      floatingKeyBoard(tables, context.rooms.setup), floatingKeyPad(tables, context.rooms.setup) {}

void KeyPictures::Init_KeyTables() {
  tables = KeyTables();
  KeyBoardClass.MakeKeyBoard(ctx.form.fxgKeyBoard, false);
  KeyPadClass.MakeKeyPad(ctx.form.fxgKeyPad, false);
  LoadFloating(frmKeyBoard, frmKeyBoard.fxgKeyBoard, ctx.form.mnuViewKeyBoard);
  floatingKeyBoard.MakeKeyBoard(frmKeyBoard.fxgKeyBoard, true);
  LoadFloating(frmKeyPad, frmKeyPad.fxgKeyPad, ctx.form.mnuViewKeyPad);
  floatingKeyPad.MakeKeyPad(frmKeyPad.fxgKeyPad, true);
}

void KeyPictures::LoadFloating(Form& floating, Grid& grid, Menu& entry) {
  ctx.rooms.texts.LoadFormProperties(floating);
  floating.OnResize = [&floating, &grid] { grid.Move(0, 0, floating.Width, floating.Height); };
  floating.OnQueryUnload = [this, &floating, &entry] {
    PutAway(floating, entry);
    return false;
  };
  floating.OnKeyDown = [this, &floating, &entry](int key, int shift) {
    if (ctx.rooms.texts.FormKeyDown(floating, key, shift))
      return true;
    const bool away = key == keys::Esc || key == keys::F4;
    if (away)
      PutAway(floating, entry);
    return away;
  };
  grid.OnDblClick = [this, &floating, &entry] { PutAway(floating, entry); };
  // The keys are the main form's: it gets the focus back from the picture.
  grid.OnClick = [this](int, int) { ctx.rooms.platform.shell.SetFocus(ctx.form.Grid); };
  floating.OnResize();
  floating.Loaded = true;
}

void KeyPictures::LoadViews() {
  ctx.rooms.platform.shell.Load(frmKeyBoard);
  ctx.rooms.platform.shell.Load(frmKeyPad);
}

void KeyPictures::PutAway(Form& floating, Menu& entry) {
  ctx.rooms.platform.shell.Hide(floating);
  entry.SetChecked(false);
}

void KeyPictures::AddSetup() {
  KeyBoardClass.AddSetup();
  KeyPadClass.AddSetup();
  floatingKeyBoard.AddSetup();
  floatingKeyPad.AddSetup();
}

void KeyPictures::RemoveSetup() {
  KeyBoardClass.RemoveSetup();
  KeyPadClass.RemoveSetup();
  floatingKeyBoard.RemoveSetup();
  floatingKeyPad.RemoveSetup();
}

std::string KeyPictures::KeyCaption(int code) const {
  if (code < 0 || code == SpaceBar)
    return NoCaption;
  const auto text = KeyBoardClass.KeyText(code);
  return text.empty() ? KeyPadClass.KeyText(code) : text;
}

void KeyPictures::RemoveSelectedKey() {
  const int tab = ctx.form.TabStrip1.Selected();
  if (tab != TabKeyboard && tab != TabKeypad)
    return;
  const Grid& picture = tab == TabKeyboard ? ctx.form.fxgKeyBoard : ctx.form.fxgKeyPad;
  const auto& text = picture.Text(picture.Row(), picture.Col());
  const int code = tab == TabKeyboard ? KeyBoard_KeyCode(text) : KeyPad_KeyCode(text);
  const int obs = code < 0 ? -1 : ctx.rooms.setup.KeyToObs(code);
  if (ctx.rooms.setup.Has(obs))
    UnassignKey(obs, code);
}

// The pictures go first, as they find the key by the observation's own code. The header stays empty until the grid is
// made anew.
void KeyPictures::UnassignKey(int obs, int code) {
  for (ClassKeyBoard* picture : {&KeyBoardClass, &KeyPadClass, &floatingKeyBoard, &floatingKeyPad})
    picture->RemoveKey(obs);
  ctx.form.Grid.SetText(Grids::KeyRow, obs, "");
  ctx.rooms.setup.Clear_SetupKey(obs);
  ctx.rooms.setup.Observations(obs).SetKeyCode(-1);
  ctx.rooms.setup.SetKeyToObs(code, -1);
}

void KeyPictures::mnuViewKeyBoard_Click() {
  Toggle(frmKeyBoard, ctx.form.mnuViewKeyBoard, floatingKeyBoard);
}

void KeyPictures::mnuViewKeyPad_Click() {
  Toggle(frmKeyPad, ctx.form.mnuViewKeyPad, floatingKeyPad);
}

void KeyPictures::Toggle(Form& floating, Menu& entry, ClassKeyBoard& picture) {
  entry.SetChecked(!entry.Checked());
  if (!entry.Checked())
    return ctx.rooms.platform.shell.Hide(floating);
  picture.AddSetup();
  ctx.rooms.platform.shell.Show(floating);
}

void KeyPictures::Show_KeyForms() {
  if (ctx.form.mnuViewKeyBoard.Checked())
    ctx.rooms.platform.shell.Show(frmKeyBoard);
  if (ctx.form.mnuViewKeyPad.Checked())
    ctx.rooms.platform.shell.Show(frmKeyPad);
}

void KeyPictures::Hide_KeyForms() {
  for (Form* floating : {static_cast<Form*>(&frmKeyBoard), static_cast<Form*>(&frmKeyPad)})
    if (floating->Shown)
      ctx.rooms.platform.shell.Hide(*floating);
}

void KeyPictures::Unload() {
  ctx.rooms.texts.UnloadForm(frmKeyBoard);
  ctx.rooms.texts.UnloadForm(frmKeyPad);
}

} // namespace trekor
