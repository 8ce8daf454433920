// What the windowing system does for the logic: showing forms, message boxes, focus, pictures. Forms and controls are
// named by their models, which outlive their views.
#pragma once

#include <string>

namespace trekor {

class Form;
class Control;

enum class BoxIcon { None, Stop, Exclamation, Information };

enum class PictureFile {
  Written,
  NoPicture, // there is no picture under this key
  Failed     // no such folder, a full disk
};

class Shell {
public:
  virtual ~Shell() = default;
  // Makes the view of a form, hidden, unless it has one already. Showing a form or giving focus to its controls loads
  // it too.
  virtual void Load(Form& form) = 0;
  // Takes the view away; the form can be loaded again.
  virtual void Unload(Form& form) = 0;
  virtual void Show(Form& form) = 0;
  virtual void Hide(Form& form) = 0;
  // Shows the form and returns when it has been hidden again or the program ends; timers fire and lines of the link are
  // carried out meanwhile.
  virtual void ShowModal(Form& form) = 0;
  virtual void SetFocus(Control& control) = 0;
  virtual void BringToFront(Control& control) = 0;
  // The window's handle as a number, as the link announces it; 0 when there is none.
  virtual long long WindowHandle(Form& form) = 0;
  virtual void Hourglass(bool on) = 0;
  // All windows in the colours of the night, or of the day again, from the next picture on.
  virtual void ShowNight(bool on) = 0;
  // A message box with an OK button; returns when it is closed. Timers and the link go on meanwhile.
  virtual void MsgBox(const std::string& text, const std::string& title, BoxIcon icon) = 0;
  // Closes the message boxes that are up, as a run of the control program needs the keys that they hold.
  virtual void CloseBoxes() = 0;
  // A small text over the main window while something long runs; the empty text takes it away. It is on the screen when
  // the call returns, as the caller need not pump.
  virtual void ShowNotice(const std::string& text) = 0;
  // Writes the picture of an image-list key as a PNG file at a native path.
  virtual PictureFile SavePicture(const std::string& key, const std::string& nativePath) = 0;
};

} // namespace trekor
