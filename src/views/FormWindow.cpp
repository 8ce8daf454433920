#include "views/FormWindow.h"

#include "views/FormView.h"
#include "views/Page.h"
#include "views/Theme.h"

#include <QCloseEvent>
#include <QFontMetrics>
#include <QLabel>
#include <QMenuBar>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace trekor {

namespace {
constexpr int RemarkPixels = 22, SmallestRemark = 15, RemarkMargin = 10;
} // namespace

FormWindow::FormWindow(FormView& v, Qt::WindowFlags flags)
    : QWidget(nullptr, flags), view(&v), sheet(new QWidget(this)), inside(sheet) {
  if (v.Model().OnResize || v.Model().InSight) // a form whose controls are arranged to its size
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

void FormWindow::SetRemark(const QString& text) {
  if (!remark) {
    remark = new QLabel(this);
    remark->setTextFormat(Qt::PlainText);
    remark->setWordWrap(true);
    remark->setContentsMargins(RemarkMargin, 0, RemarkMargin, RemarkMargin);
  }
  remark->setText(text);
  remark->setVisible(!text.isEmpty());
  LayOut();
}

// Read from the driver's seat, so as large as fits into one line.
int FormWindow::RemarkHeight(int width) const {
  if (!remark || remark->text().isEmpty())
    return 0;
  QFont large = font();
  large.setPixelSize(RemarkPixels);
  while (large.pixelSize() > SmallestRemark &&
         QFontMetrics(large).horizontalAdvance(remark->text()) > width - 2 * RemarkMargin)
    large.setPixelSize(large.pixelSize() - 1);
  remark->setFont(large);
  return remark->heightForWidth(width);
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

void FormWindow::LayOut() {
  const int top = MenuHeight(), foot = RemarkHeight(width());
  if (menus)
    menus->setGeometry(0, 0, width(), top);
  inside->setGeometry(0, top, width(), std::max(0, height() - top - foot));
  if (remark)
    remark->setGeometry(0, height() - foot, width(), foot);
}

void FormWindow::resizeEvent(QResizeEvent*) {
  LayOut();
  if (view)
    view->WindowResized(inside->size());
}

void FormWindow::mouseDoubleClickEvent(QMouseEvent*) {
  if (view)
    view->DoubleClicked();
}

void FormWindow::moveEvent(QMoveEvent*) {
  if (view)
    view->WindowMoved(pos());
}

} // namespace trekor
