#include "views/QtShell.h"

#include "views/FormWindow.h"
#include "views/Theme.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QFile>
#include <QIcon>
#include <QLabel>
#include <QMessageBox>
#include <QScreen>
#include <QWindow>

namespace trekor {

namespace {

constexpr int BoxPixels = 20; // read from the driver's seat

QMessageBox::Icon IconOf(BoxIcon icon) {
  switch (icon) {
  case BoxIcon::Stop:
    return QMessageBox::Critical;
  case BoxIcon::Exclamation:
    return QMessageBox::Warning;
  case BoxIcon::Information:
    return QMessageBox::Information;
  case BoxIcon::None:
    break;
  }
  return QMessageBox::NoIcon;
}

} // namespace

QtShell::QtShell(Drives& drives) : pictures(drives) {}

QtShell::~QtShell() {
  UnloadAll();
}

void QtShell::UnloadAll() {
  while (!views.empty())
    Unload(*views.begin()->first);
  notice.reset();
}

void QtShell::AskToClose() {
  if (const auto place = views.find(mainForm); place != views.end())
    place->second->CloseAsked();
}

void QtShell::Load(Form& form) {
  auto& view = views[&form];
  if (!view) {
    view.reset(new FormView(form, pictures));
    form.Loaded = true;
  }
}

void QtShell::Unload(Form& form) {
  const auto place = views.find(&form);
  if (place == views.end())
    return;
  const auto view = std::move(place->second);
  views.erase(place);
  form.Loaded = false;
  view->Detach();
}

FormView* QtShell::ViewOf(Form& form) {
  Load(form);
  return views.at(&form).get();
}

QWidget* QtShell::MainWindow() const {
  const auto place = mainForm ? views.find(mainForm) : views.end();
  return place == views.end() || !mainForm->Shown ? nullptr : place->second->Window();
}

void QtShell::Show(Form& form) {
  FormView* view = ViewOf(form);
  if (!mainForm) {
    mainForm = &form;
    view->OnFirstPicture = [this] {
      QGuiApplication::setWindowIcon(QPixmap::fromImage(pictures.Original("Trekor"))); // no picture waits for it
      if (OnFirstPicture)
        OnFirstPicture();
    };
  }
  view->Show(MainWindow());
}

void QtShell::Hide(Form& form) {
  const auto place = views.find(&form);
  if (place != views.end())
    place->second->Hide();
}

void QtShell::ShowModal(Form& form) {
  // Not above a message box: a run closes that, and the form's window would go with it.
  QWidget* active = dynamic_cast<FormWindow*>(QApplication::activeWindow());
  ViewOf(form)->ShowModal(active ? active : MainWindow());
}

void QtShell::SetFocus(Control& control) {
  FormView* view = ViewOf(control.Owner());
  Binding* binding = view->Window() ? view->BindingOf(control) : nullptr;
  QWidget* w = binding ? binding->Ensure() : nullptr;
  if (!w || !control.Enabled())
    return;
  w->setFocus();
  control.Owner().FocusMoved(&control); // a window without the keyboard reports it only when it gets that
  // From another window of this program, not from another program's.
  const QWidget* asking = QApplication::activeModalWidget();
  if (w->window()->isVisible() && QGuiApplication::focusWindow() && (!asking || asking == w->window()))
    w->activateWindow();
}

void QtShell::BringToFront(Control& control) {
  FormView* view = ViewOf(control.Owner());
  Binding* binding = view->Window() ? view->BindingOf(control) : nullptr;
  if (QWidget* w = binding ? binding->Ensure() : nullptr)
    w->raise();
}

long long QtShell::WindowHandle(Form& form) {
  QWidget* w = ViewOf(form)->Window();
  return w ? static_cast<long long>(w->winId()) : 0;
}

void QtShell::Hourglass(bool on) {
  if (std::exchange(hourglass, on) == on)
    return;
  if (on)
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  else
    QGuiApplication::restoreOverrideCursor();
}

// The day is what the application begins with: a start by day sets no palette a second time.
void QtShell::ShowNight(bool on) {
  if (std::exchange(night, on) != on)
    theme::ShowNight(on);
}

void QtShell::MsgBox(const std::string& text, const std::string& title, BoxIcon icon) {
  const QPointer<QWidget> before = QApplication::activeWindow();
  QWidget* asking = QApplication::activeModalWidget(); // also while another program is in front
  QMessageBox box(IconOf(icon), Q(title), Q(text), QMessageBox::Ok, asking ? asking : before.data());
  box.setTextFormat(Qt::PlainText);
  QFont large = box.font();
  large.setPixelSize(BoxPixels);
  box.setFont(large);
  box.exec();
  // Closed by its button: behind CloseBoxes the keyboard is the run's.
  if (box.clickedButton() && before && before->isVisible())
    before->activateWindow();
}

void QtShell::CloseBoxes() {
  for (QWidget* w : QApplication::topLevelWidgets())
    if (auto* box = qobject_cast<QMessageBox*>(w))
      box->reject();
}

void QtShell::ShowNotice(const std::string& text) {
  if (text.empty()) {
    notice.reset();
    return;
  }
  if (!notice) {
    notice = std::make_unique<QLabel>(nullptr, Qt::ToolTip);
    notice->setMargin(24);
    notice->setFrameShape(QFrame::Box);
  }
  notice->setText(Q(text));
  notice->adjustSize();
  const QWidget* over = MainWindow();
  const QRect area = over ? over->frameGeometry() : QGuiApplication::primaryScreen()->availableGeometry();
  notice->move(area.center() - notice->rect().center());
  notice->show();
  AwaitExposure();
  notice->repaint();
}

// A window is painted once the window system has exposed it, which takes some turns of the loop, and the caller may not
// pump for long. Keys and the link wait meanwhile.
void QtShell::AwaitExposure() {
  constexpr int longest = 500; // milliseconds
  const auto what = QEventLoop::ExcludeUserInputEvents | QEventLoop::ExcludeSocketNotifiers;
  for (const QDeadlineTimer limit(longest); !notice->windowHandle()->isExposed() && !limit.hasExpired();)
    QCoreApplication::processEvents(what, static_cast<int>(limit.remainingTime()));
}

// Unbuffered: with a buffer a full disk would show only when the file is closed, where no error is reported.
PictureFile QtShell::SavePicture(const std::string& key, const std::string& nativePath) {
  const QImage& image = pictures.Original(key);
  if (image.isNull())
    return PictureFile::NoPicture;
  QFile file(Q(nativePath));
  const bool written = file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && image.save(&file, "PNG") &&
                       file.error() == QFile::NoError;
  return written ? PictureFile::Written : PictureFile::Failed;
}

} // namespace trekor
