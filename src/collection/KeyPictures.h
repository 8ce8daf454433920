// The on-screen keyboard and keypad, docked in their tabs and floating in windows of their own: who is painted when,
// and the taking away of a key.
#pragma once

#include "collection/MeasurementsForm.h"
#include "platform/Shell.h"
#include "setup/ClassKeyBoard.h"
#include "texts/TextDatabase.h"

#include <array>
#include <string>

namespace trekor {

class KeyPictures {
public:
  KeyPictures(MeasurementsForm& form, Shell& shell, TextDatabase& texts, TestSetup& setup);
  // Lays out all four pictures and dresses the floating windows without showing them. Their views are made by
  // LoadViews, when the main form can already be seen.
  void Init_KeyTables();
  void LoadViews();
  // The setup's icons on all four pictures, or away from them.
  void AddSetup();
  void RemoveSetup();
  // The text on the key as a column header shows it; the space bar and no key (-1) read "[ ]".
  std::string KeyCaption(int code) const;
  // Delete in idle, on the tab Keyboard or Keypad: the key under the cursor no longer carries its observation.
  void RemoveSelectedKey();

  void mnuViewKeyBoard_Click();
  void mnuViewKeyPad_Click();
  // The windows that are ticked in the menu, when the main form is shown or no longer minimised.
  void Show_KeyForms();
  void Hide_KeyForms();
  // The floating windows go with the minimised form and come back with it.
  void WatchMinimise();
  void Unload();

  KeyBoardForm frmKeyBoard;
  KeyPadForm frmKeyPad;

private:
  void LoadFloating(Form& floating, Grid& grid, Menu& entry);
  void Toggle(Form& floating, Menu& entry, ClassKeyBoard& picture);
  void PutAway(Form& floating, Menu& entry);
  void UnassignKey(int obs, int code);

  enum Picture { DockedBoard, DockedPad, FloatingBoard, FloatingPad };

  MeasurementsForm& form;
  Shell& shell;
  TextDatabase& texts;
  TestSetup& setup;
  KeyTables tables;
  std::array<ClassKeyBoard, 4> pictures; // by Picture
  bool KeyFormsHidden = false;           // the main form is minimised
};

} // namespace trekor
