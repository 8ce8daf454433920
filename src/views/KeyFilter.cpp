#include "views/KeyFilter.h"

#include "views/FormView.h"
#include "views/FormWindow.h"
#include "views/KeyTranslation.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QWindow>

#include <utility>

namespace trekor {

namespace {

FormView* ViewOf(const QObject* window) {
  for (QWidget* w : QApplication::topLevelWidgets())
    if (auto* form = dynamic_cast<FormWindow*>(w); form && form->windowHandle() == window)
      return form->View();
  return nullptr;
}

// 1 Shift, 2 Ctrl, 4 Alt.
int ShiftState(Qt::KeyboardModifiers m) {
  return (m & Qt::ShiftModifier ? 1 : 0) + (m & Qt::ControlModifier ? 2 : 0) + (m & Qt::AltModifier ? 4 : 0);
}

} // namespace

KeyFilter::KeyFilter(std::function<Form*()> firstForm) : mainForm(std::move(firstForm)) {
  const QString platform = QGuiApplication::platformName();
  if (platform == "xcb" || platform.startsWith("wayland"))
    numbersBegin = 8;
  else if (platform == "windows")
    numbersBegin = 0;
  qApp->installEventFilter(this);
}

bool KeyFilter::eventFilter(QObject* watched, QEvent* event) {
  const QEvent::Type type = event->type();
  // The toolkit's own menu of a box: its entries would take the next keys.
  if (type == QEvent::ContextMenu && static_cast<QContextMenuEvent*>(event)->reason() == QContextMenuEvent::Keyboard)
    return true;
  const bool question = type == QEvent::ShortcutOverride, press = type == QEvent::KeyPress;
  if ((!question && !press && type != QEvent::KeyRelease) || !watched->isWindowType())
    return false;
  auto& key = static_cast<QKeyEvent&>(*event);
  if (!question && !press) {
    Release(key);
    return false;
  }
  // An open menu or list has its own keys.
  FormView* view = QApplication::activePopupWidget() ? nullptr : ViewOf(watched);
  return press ? Press(view, key) : Question(view, key);
}

int KeyFilter::CodeOf(const QKeyEvent& key) const {
  const unsigned scan = key.nativeScanCode();
  return KeyCodeOf(key.key(), key.modifiers().testFlag(Qt::KeypadModifier),
                   numbersBegin && scan > *numbersBegin ? scan - *numbersBegin : 0);
}

bool KeyFilter::Offer(FormView* view, const QKeyEvent& key) const {
  const int code = CodeOf(key), shift = ShiftState(key.modifiers());
  // A key that was on its way when its window went must not change the answer that has been given.
  const bool late = view && !view->Model().Shown;
  if (code == 0)
    return late;
  Form* first = mainForm();
  const bool elsewhere = view ? (late || !view->IsModal()) && &view->Model() != first
                              : QApplication::activePopupWidget() && !QApplication::activeModalWidget();
  if (first && elsewhere && first->OnKeyElsewhere && first->OnKeyElsewhere(code, shift)) {
    QWidget* popup = QApplication::activePopupWidget();
    while (popup && popup->close())
      popup = QApplication::activePopupWidget();
    return true;
  }
  return late || (view && view->OfferKey(code, shift));
}

void KeyFilter::Release(const QKeyEvent& key) const {
  const Form* first = mainForm();
  if (first && first->OnKeyUp && !key.isAutoRepeat())
    first->OnKeyUp(CodeOf(key));
}

// The form's work may pump and let further keys in: their answers must not be taken for this one's.
bool KeyFilter::Question(FormView* view, QKeyEvent& key) {
  const bool answer = Offer(view, key);
  asked = true;
  taken = answer;
  if (answer)
    key.accept(); // no shortcut may have it
  return answer;
}

bool KeyFilter::Press(FormView* view, QKeyEvent& key) {
  const bool answer = asked ? taken : Offer(view, key);
  asked = false;
  if (answer || !view || key.text().isEmpty())
    return answer;
  const char32_t typed = key.text().toUcs4().front();
  const char32_t becomes = view->OfferCharacter(typed);
  if (becomes == typed)
    return false;
  if (auto* line = becomes != 0 ? dynamic_cast<QLineEdit*>(view->Focused()) : nullptr) {
    line->insert(QString::fromUcs4(&becomes, 1));
    emit line->textEdited(line->text());
  }
  return true;
}

} // namespace trekor
