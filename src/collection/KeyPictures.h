// The on-screen keyboard and keypad, docked in their tabs and floating in windows of their own, and when each is
// painted.
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
  // The floating pictures, which alone stay to be seen in a run: what goes on there, and the key of this code. The
  // docked ones keep their current key, which is the one that Delete takes away.
  void ShowValues(bool show);
  void MarkKey(int code);
  // The icon of one observation, on the key that it has now.
  void AddKey(int obs);
  void RemoveKey(int obs);
  // The code of the key in a cell of one of the four pictures, -1 for a key that carries nothing.
  int KeyCode(const Grid& keys, int row, int col) const;
  // Whether both are keyboards, or both keypads.
  bool SameKeys(const Grid& a, const Grid& b) const;
  // The text on the key; "" for a code that is on no picture.
  std::string KeyText(int code) const;
  // The same as the head of a new column shows it; the space bar and no key (-1) read NoCaption.
  std::string KeyCaption(int code) const;
  static constexpr const char* NoCaption = "[ ]";

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
  bool OnKeyPad(const Grid& keys) const;
  bool OnKeyBoard(const Grid& keys) const;

  enum Picture { DockedBoard, DockedPad, FloatingBoard, FloatingPad };

  MeasurementsForm& form;
  Shell& shell;
  TextDatabase& texts;
  KeyTables tables;
  std::array<ClassKeyBoard, 4> pictures; // by Picture
  bool KeyFormsHidden = false;           // the main form is minimised
};

} // namespace trekor
