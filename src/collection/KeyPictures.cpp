#include "collection/KeyPictures.h"

#include "collection/RunGrid.h"
#include "values/KeyCodes.h"

namespace trekor {

namespace {
constexpr int SpaceBar = 32;
constexpr const char* NoCaption = "[ ]";
constexpr int TabKeyboard = 1, TabKeypad = 2;
} // namespace

KeyPictures::KeyPictures(MeasurementsForm& form, Shell& shell, TextDatabase& texts, TestSetup& setup)
    : form(form), shell(shell), texts(texts),
      setup(setup), pictures{ClassKeyBoard(tables, setup), ClassKeyBoard(tables, setup), ClassKeyBoard(tables, setup),
                             ClassKeyBoard(tables, setup)} {}

void KeyPictures::Init_KeyTables() {
  tables = KeyTables();
  pictures[DockedBoard].MakeKeyBoard(form.fxgKeyBoard, false);
  pictures[DockedPad].MakeKeyPad(form.fxgKeyPad, false);
  LoadFloating(frmKeyBoard, frmKeyBoard.fxgKeyBoard, form.mnuViewKeyBoard);
  pictures[FloatingBoard].MakeKeyBoard(frmKeyBoard.fxgKeyBoard, true);
  LoadFloating(frmKeyPad, frmKeyPad.fxgKeyPad, form.mnuViewKeyPad);
  pictures[FloatingPad].MakeKeyPad(frmKeyPad.fxgKeyPad, true);
}

void KeyPictures::LoadFloating(Form& floating, Grid& grid, Menu& entry) {
  texts.LoadFormProperties(floating);
  floating.OnResize = [&floating, &grid] { grid.Move(0, 0, floating.Width, floating.Height); };
  floating.OnQueryUnload = [this, &floating, &entry] {
    PutAway(floating, entry);
    return false;
  };
  floating.OnKeyDown = [this, &floating, &entry](int key, int shift) {
    if (texts.FormKeyDown(floating, key, shift))
      return true;
    const bool away = key == keys::Esc || key == keys::F4;
    if (away)
      PutAway(floating, entry);
    return away;
  };
  grid.OnDblClick = [this, &floating, &entry] { PutAway(floating, entry); };
  // The main form gets the focus back, as the keys belong to it.
  grid.OnClick = [this](int, int) { shell.SetFocus(form.Grid); };
  floating.OnResize();
  floating.Loaded = true;
}

void KeyPictures::LoadViews() {
  shell.Load(frmKeyBoard);
  shell.Load(frmKeyPad);
}

void KeyPictures::PutAway(Form& floating, Menu& entry) {
  shell.Hide(floating);
  entry.SetChecked(false);
}

void KeyPictures::AddSetup() {
  for (ClassKeyBoard& picture : pictures)
    picture.AddSetup();
}

void KeyPictures::RemoveSetup() {
  for (ClassKeyBoard& picture : pictures)
    picture.RemoveSetup();
}

std::string KeyPictures::KeyCaption(int code) const {
  if (code < 0 || code == SpaceBar)
    return NoCaption;
  const auto text = pictures[DockedBoard].KeyText(code);
  return text.empty() ? pictures[DockedPad].KeyText(code) : text;
}

void KeyPictures::RemoveSelectedKey() {
  const int tab = form.TabStrip1.Selected();
  if (tab != TabKeyboard && tab != TabKeypad)
    return;
  const Grid& picture = tab == TabKeyboard ? form.fxgKeyBoard : form.fxgKeyPad;
  const auto& text = picture.Text(picture.Row(), picture.Col());
  const int code = tab == TabKeyboard ? KeyBoard_KeyCode(text) : KeyPad_KeyCode(text);
  const int obs = code < 0 ? -1 : setup.KeyToObs(code);
  if (setup.Has(obs))
    UnassignKey(obs, code);
}

// The pictures first, as they find the key by the observation's code. The column head stays empty until the grid is set
// up anew.
void KeyPictures::UnassignKey(int obs, int code) {
  for (ClassKeyBoard& picture : pictures)
    picture.RemoveKey(obs);
  form.Grid.SetText(RunGrid::KeyRow, obs, "");
  setup.Clear_SetupKey(obs);
  setup.Observations(obs).SetKeyCode(-1);
  setup.SetKeyToObs(code, -1);
}

void KeyPictures::mnuViewKeyBoard_Click() {
  Toggle(frmKeyBoard, form.mnuViewKeyBoard, pictures[FloatingBoard]);
}

void KeyPictures::mnuViewKeyPad_Click() {
  Toggle(frmKeyPad, form.mnuViewKeyPad, pictures[FloatingPad]);
}

void KeyPictures::Toggle(Form& floating, Menu& entry, ClassKeyBoard& picture) {
  entry.SetChecked(!entry.Checked());
  if (!entry.Checked())
    return shell.Hide(floating);
  picture.AddSetup();
  shell.Show(floating);
}

void KeyPictures::Show_KeyForms() {
  if (form.mnuViewKeyBoard.Checked())
    shell.Show(frmKeyBoard);
  if (form.mnuViewKeyPad.Checked())
    shell.Show(frmKeyPad);
}

void KeyPictures::Hide_KeyForms() {
  for (Form* floating : {static_cast<Form*>(&frmKeyBoard), static_cast<Form*>(&frmKeyPad)})
    if (floating->Shown)
      shell.Hide(*floating);
}

void KeyPictures::WatchMinimise() {
  const bool minimised = form.WindowState() == WindowStates::Minimised;
  if (minimised == KeyFormsHidden)
    return;
  KeyFormsHidden = minimised;
  if (minimised)
    return Hide_KeyForms();
  form.SetWindowState(WindowStates::Minimised); // for a moment, or the floating windows would come up behind the form
  Show_KeyForms();
  form.SetWindowState(WindowStates::Normal);
}

void KeyPictures::Unload() {
  texts.UnloadForm(frmKeyBoard);
  texts.UnloadForm(frmKeyPad);
}

} // namespace trekor
