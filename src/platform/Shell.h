// What the windowing system does for the logic: showing forms, boxes, focus, pictures. Forms are told by their models.
#pragma once

#include <string>

namespace trekor {

class Form;
class Control;

enum class BoxIcon { None, Stop, Exclamation, Information };

enum class PictureFile {
  Written,
  NoPicture,
  Failed
}; // NoPicture: the key has none; Failed: a full disk, no such folder

class Shell {
public:
  virtual ~Shell() = default;
  // Makes the view of a form, hidden. Called once in a form's life, when the form is loaded.
  virtual void Load(Form& form) = 0;
  virtual void Unload(Form& form) = 0;
  virtual void Show(Form& form) = 0;
  virtual void Hide(Form& form) = 0;
  // Shows the form and returns when it has been hidden again; timers and the socket keep their turns.
  virtual void ShowModal(Form& form) = 0;
  virtual void SetFocus(Control& control) = 0;
  virtual void BringToFront(Control& control) = 0;
  // The window's handle as a number; 0 when there is none.
  virtual long long WindowHandle(Form& form) = 0;
  virtual void Hourglass(bool on) = 0;
  // A plain message box with an OK button.
  virtual void MsgBox(const std::string& text, const std::string& title, BoxIcon icon) = 0;
  // A small text over the screen while something long runs; the empty text takes it away.
  virtual void ShowNotice(const std::string& text) = 0;
  // Writes the picture of an image-list key as a file in the platform's picture format (PNG) to a native path.
  virtual PictureFile SavePicture(const std::string& key, const std::string& nativePath) = 0;
};

} // namespace trekor
