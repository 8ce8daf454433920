// The Shell of the toolkit: a view for each loaded form.
#pragma once

#include "platform/Shell.h"
#include "views/FormView.h"
#include "views/KeyFilter.h"

#include <QPointer>

#include <functional>
#include <map>
#include <memory>

class QLabel;

namespace trekor {

class QtShell : public Shell {
public:
  explicit QtShell(Drives& drives);
  ~QtShell() override;
  QtShell(const QtShell&) = delete;
  QtShell& operator=(const QtShell&) = delete;

  void Load(Form& form) override;
  void Unload(Form& form) override;
  void Show(Form& form) override;
  void Hide(Form& form) override;
  void ShowModal(Form& form) override;
  void SetFocus(Control& control) override;
  void BringToFront(Control& control) override;
  long long WindowHandle(Form& form) override;
  void Hourglass(bool on) override;
  void ShowNight(bool on) override;
  void MsgBox(const std::string& text, const std::string& title, BoxIcon icon) override;
  void CloseBoxes() override;
  void ShowNotice(const std::string& text) override;
  PictureFile SavePicture(const std::string& key, const std::string& nativePath) override;

  // Acts as a click on the main window's close box, whatever is in front.
  void AskToClose();
  // Removes all views. To be called while the forms still exist.
  void UnloadAll();
  // Raised once, when the first window has shown its first picture.
  std::function<void()> OnFirstPicture;

private:
  struct DeleteLater {
    void operator()(FormView* view) const { view->deleteLater(); }
  };
  FormView* ViewOf(Form& form); // loads the form when it isn't yet
  QWidget* MainWindow() const;
  void AwaitExposure();

  PictureStore pictures;
  KeyFilter keys{[this] { return MainWindow() ? mainForm : nullptr; }};
  std::map<Form*, std::unique_ptr<FormView, DeleteLater>> views;
  Form* mainForm = nullptr; // the first one that was shown
  std::unique_ptr<QLabel> notice;
  bool hourglass = false, night = false;
};

} // namespace trekor
