#include "views/FormWindow.h"

#include "views/FormView.h"
#include "views/Page.h"
#include "views/Theme.h"

#include <QCloseEvent>
#include <QMenuBar>
#include <QTimer>

#include <utility>

namespace trekor {

FormWindow::FormWindow(FormView& v, Qt::WindowFlags flags)
    : QWidget(nullptr, flags), view(&v), sheet(new QWidget(this)), inside(sheet) {
  if (v.Model().OnResize) // a form that arranges its controls itself
    return;
  auto* page = new Page(this);
  page->Hold(sheet);
  inside = page;
}

QMenuBar* FormWindow::MenuBar() {
  if (!menus)
    menus = new QMenuBar(this);
  return menus;
}

int FormWindow::MenuHeight() const {
  return menus ? menus->sizeHint().height() : 0;
}

bool FormWindow::event(QEvent* e) {
  const QEvent::Type type = e->type();
  const bool result = QWidget::event(e);
  if (type == QEvent::DeferredDelete)
    return result; // that was the end of this window
  if (!view)
    return result;
  if (type == QEvent::WindowStateChange)
    view->WindowStateChanged(windowState());
  else if (type == QEvent::WindowActivate)
    view->WindowActivated();
  else if (type == QEvent::Paint && !std::exchange(painted, true))
    QTimer::singleShot(0, view, [v = view] {
      if (v->OnFirstPicture)
        v->OnFirstPicture();
    });
  return result;
}

// Whether the window goes is the form's to say; if so it is taken away by the unload.
void FormWindow::closeEvent(QCloseEvent* e) {
  e->ignore();
  if (view)
    view->CloseAsked();
}

void FormWindow::resizeEvent(QResizeEvent*) {
  const int top = MenuHeight();
  if (menus)
    menus->setGeometry(0, 0, width(), top);
  inside->setGeometry(0, top, width(), height() - top);
  if (view)
    view->WindowResized(inside->size());
}

void FormWindow::moveEvent(QMoveEvent*) {
  if (view)
    view->WindowMoved(pos());
}

} // namespace trekor
