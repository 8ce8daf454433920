#include "views/Page.h"

#include <QApplication>

namespace trekor {

Page::Page(QWidget* parent) : QScrollArea(parent) {
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setWidgetResizable(true);
  viewport()->setAutoFillBackground(false);
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* to) {
    if (to && isAncestorOf(to))
      ensureWidgetVisible(to); // a question is asked there
  });
}

void Page::Hold(QWidget* sheet) {
  setWidget(sheet);
  sheet->setAutoFillBackground(false);
}

void Page::showEvent(QShowEvent* e) {
  MakeRoom();
  QScrollArea::showEvent(e);
}

void Page::resizeEvent(QResizeEvent* e) {
  MakeRoom();
  QScrollArea::resizeEvent(e);
}

// The bar below takes a little of the height; for that alone there need not be another one at the side.
void Page::MakeRoom() {
  const QRect needed = widget()->childrenRect();
  const bool high = needed.bottom() >= height();
  widget()->setMinimumSize(needed.right() + 1, high ? needed.bottom() + 1 : 0);
}

} // namespace trekor
