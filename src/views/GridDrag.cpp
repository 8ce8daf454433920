#include "views/GridDrag.h"

#include <QApplication>
#include <QCursor>

namespace trekor {

namespace {

constexpr int PictureSide = 48;

// The grid at a place of the screen; null when another window or no grid is there.
GridWidget* GridAt(QPoint global) {
  for (QWidget* w = QApplication::widgetAt(global); w; w = w->parentWidget())
    if (auto* grid = dynamic_cast<GridWidget*>(w))
      return grid;
  return nullptr;
}

} // namespace

GridDrag::GridDrag(GridWidget& widget, PictureStore& store, QWidget& mouseSurface)
    : source(widget), pictures(store), surface(mouseSurface) {}

GridDrag::~GridDrag() {
  End();
}

void GridDrag::Press(const QMouseEvent& e) {
  if (active)
    active->End();
  from = e.globalPosition().toPoint();
  const Grid& grid = source.GridModel();
  const std::optional<GridCell> cell = source.CellAt(from);
  if (e.button() != Qt::LeftButton || !cell || !grid.OnPickUp || !grid.Enabled())
    return;
  picture = grid.OnPickUp(cell->row, cell->col);
  if (picture.empty())
    return;
  active = this;
  window = surface.window();
  window->installEventFilter(this);
  surface.installEventFilter(this);
}

// A hand that trembles in a click drags nothing.
void GridDrag::Move(const QMouseEvent& e) {
  const QPoint way = e.globalPosition().toPoint() - from;
  if (!picture.empty() && !shown && (e.buttons() & Qt::LeftButton) &&
      way.manhattanLength() >= QApplication::startDragDistance())
    ShowPicture();
}

void GridDrag::ShowPicture() {
  shown = true;
  const QPixmap icon = pictures.Scaled(picture, PictureSide, surface.devicePixelRatioF());
  QApplication::setOverrideCursor(icon.isNull() ? QCursor(Qt::ClosedHandCursor) : QCursor(icon));
}

void GridDrag::Release(const QMouseEvent& e) {
  if (e.button() != Qt::LeftButton)
    return;
  const bool dropped = shown;
  End();
  const QPoint place = e.globalPosition().toPoint();
  GridWidget* target = dropped ? GridAt(place) : nullptr;
  if (!target || !target->GridModel().OnDrop || !target->GridModel().Enabled())
    return;
  if (const std::optional<GridCell> cell = target->CellAt(place))
    target->GridModel().OnDrop(source.GridModel(), cell->row, cell->col);
}

bool GridDrag::eventFilter(QObject* watched, QEvent* e) {
  if (e->type() == QEvent::Hide || e->type() == QEvent::WindowBlocked || e->type() == QEvent::WindowDeactivate)
    End();
  return QObject::eventFilter(watched, e);
}

void GridDrag::End() {
  if (picture.empty())
    return;
  picture.clear();
  active = nullptr;
  surface.removeEventFilter(this);
  if (window)
    window->removeEventFilter(this);
  if (std::exchange(shown, false))
    QApplication::restoreOverrideCursor();
}

} // namespace trekor
