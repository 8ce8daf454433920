// The on-screen keyboard and keypad, docked in their tabs and floating in windows of their own: when each is painted,
// and taking a key from its observation.
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
  // Lays out all four pictures and loads the looks of the floating windows without showing them. LoadViews makes their
  // views, when the main form is on the screen.
  void Init_KeyTables();
  void LoadViews();
  // Puts the setup's icons on all four pictures, or removes them.
  void AddSetup();
  void RemoveSetup();
  // The text on the key as a column header shows it; the space bar and no key (-1) read "[ ]".
  std::string KeyCaption(int code) const;
  // Delete in idle, on the tab Keyboard or Keypad: takes the key under the cursor from its observation, for good.
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
