#include "collection/KeyPictures.h"

#include "collection/RunGrid.h"
#include "values/KeyCodes.h"

#include <algorithm>

namespace trekor {

namespace {
constexpr int FrameWidth = 15; // twips

// A look that was stored too small is made larger, too.
void Fit(Form& floating, Grid& grid) {
  const int width = std::max(floating.Width, floating.MinWidth), height = std::max(floating.Height, floating.MinHeight);
  floating.Move(floating.Left, floating.Top, width, height);
  grid.Move(0, 0, width - 6 * FrameWidth, height - 6 * FrameWidth);
}
} // namespace

KeyPictures::KeyPictures(MeasurementsForm& form, Shell& shell, TextDatabase& texts, TestSetup& setup)
    : form(form), shell(shell), texts(texts), pictures{ClassKeyBoard(tables, setup), ClassKeyBoard(tables, setup),
                                                       ClassKeyBoard(tables, setup), ClassKeyBoard(tables, setup)} {}

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
  floating.OnResize = [&floating, &grid] { Fit(floating, grid); };
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
  floating.OnDblClick = grid.OnDblClick = [this, &floating, &entry] { PutAway(floating, entry); };
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

void KeyPictures::ShowValues(bool show) {
  if (frmKeyBoard.Shown || !show)
    pictures[FloatingBoard].ShowValues(show);
  if (frmKeyPad.Shown || !show)
    pictures[FloatingPad].ShowValues(show);
}

void KeyPictures::MarkKey(int code) {
  pictures[FloatingBoard].MarkKey(code);
  pictures[FloatingPad].MarkKey(code);
}

void KeyPictures::AddKey(int obs) {
  for (ClassKeyBoard& picture : pictures)
    picture.AddKey(obs);
}

void KeyPictures::RemoveKey(int obs) {
  for (ClassKeyBoard& picture : pictures)
    picture.RemoveKey(obs);
}

bool KeyPictures::OnKeyPad(const Grid& keys) const {
  return &keys == &form.fxgKeyPad || &keys == &frmKeyPad.fxgKeyPad;
}

bool KeyPictures::OnKeyBoard(const Grid& keys) const {
  return &keys == &form.fxgKeyBoard || &keys == &frmKeyBoard.fxgKeyBoard;
}

bool KeyPictures::SameKeys(const Grid& a, const Grid& b) const {
  return (OnKeyPad(a) && OnKeyPad(b)) || (OnKeyBoard(a) && OnKeyBoard(b));
}

int KeyPictures::KeyCode(const Grid& keys, int row, int col) const {
  const std::string& text = keys.Text(row, col);
  return OnKeyPad(keys) ? KeyPad_KeyCode(text) : KeyBoard_KeyCode(text);
}

std::string KeyPictures::KeyText(int code) const {
  const auto text = pictures[DockedBoard].KeyText(code);
  return text.empty() ? pictures[DockedPad].KeyText(code) : text;
}

std::string KeyPictures::KeyCaption(int code) const {
  return code < 0 || code == keys::Space ? NoCaption : KeyText(code);
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

// The floating windows belong to the form's, so they come up in front of it. Touching the form's own state here would
// minimise it again: the window system tells each state late.
void KeyPictures::WatchMinimise() {
  const bool minimised = form.WindowState() == WindowStates::Minimised;
  if (minimised == KeyFormsHidden)
    return;
  KeyFormsHidden = minimised;
  if (minimised)
    Hide_KeyForms();
  else
    Show_KeyForms();
}

void KeyPictures::Unload() {
  texts.UnloadForm(frmKeyBoard);
  texts.UnloadForm(frmKeyPad);
}

} // namespace trekor
