#include "views/KeyGridView.h"

#include "views/Theme.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace trekor {

KeyGridView::KeyGridView(Grid& model, PictureStore& store, QWidget* parent)
    : QWidget(parent), grid(model), pictures(store), drag(*this, store, *this) {
  setFocusPolicy(Qt::ClickFocus);
}

void KeyGridView::GridChanged() {
  grid.TakeChanges();
  update();
}

// Equal texts along a merged row, and down a merged column, are one key.
KeyGridView::Key KeyGridView::KeyAt(int row, int col) const {
  Key k{row, col, row, col};
  const std::string& text = grid.Text(row, col);
  const auto same = [&](int r, int c) {
    return r >= 0 && c >= 0 && r < grid.Rows() && c < grid.Cols() && grid.Text(r, c) == text;
  };
  while (grid.MergeRow(row) && same(row, k.col - 1))
    --k.col;
  while (grid.MergeRow(row) && same(row, k.lastCol + 1))
    ++k.lastCol;
  while (grid.MergeCol(col) && same(k.row - 1, col))
    --k.row;
  while (grid.MergeCol(col) && same(k.lastRow + 1, col))
    ++k.lastRow;
  return k;
}

QRect KeyGridView::Place(const Key& k) const {
  const int left = k.col * width() / grid.Cols(), right = (k.lastCol + 1) * width() / grid.Cols();
  const int top = k.row * height() / grid.Rows(), bottom = (k.lastRow + 1) * height() / grid.Rows();
  return {left, top, right - left, bottom - top};
}

void KeyGridView::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing);
  for (int r = 0; r < grid.Rows(); ++r)
    for (int c = 0; c < grid.Cols(); ++c)
      if (const Key k = KeyAt(r, c); k.row == r && k.col == c)
        PaintKey(p, k);
}

void KeyGridView::PaintKey(QPainter& p, const Key& k) {
  const QString text = Q(grid.Text(k.row, k.col)).trimmed();
  const std::string& picture = grid.CellPicture(k.row, k.col);
  const QRectF cap = QRectF(Place(k)).adjusted(2.5, 2.5, -2.5, -2.5);
  const bool current =
      hasFocus() && grid.Row() >= k.row && grid.Row() <= k.lastRow && grid.Col() >= k.col && grid.Col() <= k.lastCol;
  p.setPen(QPen(QColor(current ? theme::Accent : theme::Line), current ? 3 : 1));
  p.setBrush(QColor(text.isEmpty() ? theme::Desk : theme::Paper));
  p.drawRoundedRect(cap, 6, 6);
  p.setPen(QColor(picture.empty() ? theme::FaintInk : theme::Ink));
  const QRectF inside = cap.adjusted(6, 3, -6, -3);
  p.drawText(inside, picture.empty() ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignTop, text);
  if (picture.empty())
    return;
  // The letter keeps its corner; on a low key the picture stands beside it.
  const int side = static_cast<int>(std::min({inside.width(), inside.height(), 64.0}));
  const QPixmap drawn = pictures.Scaled(picture, side, devicePixelRatioF());
  const QSizeF size = drawn.deviceIndependentSize();
  const double x =
      std::max(inside.center().x() - size.width() / 2,
               std::min(inside.left() + p.fontMetrics().horizontalAdvance(text) + 4, inside.right() - size.width()));
  p.drawPixmap(QPointF(x, inside.center().y() - size.height() / 2), drawn);
}

std::optional<GridCell> KeyGridView::CellAt(QPoint global) const {
  const QPoint at = mapFromGlobal(global);
  if (!rect().contains(at) || grid.Rows() == 0 || grid.Cols() == 0)
    return std::nullopt;
  return GridCell{at.y() * grid.Rows() / height(), at.x() * grid.Cols() / width()};
}

void KeyGridView::mousePressEvent(QMouseEvent* e) {
  const auto cell = CellAt(e->globalPosition().toPoint());
  if (!grid.Enabled() || !cell)
    return;
  drag.Press(*e);
  grid.SetRow(cell->row);
  grid.SetCol(cell->col);
  update();
}

void KeyGridView::mouseMoveEvent(QMouseEvent* e) {
  drag.Move(*e);
}

// On the release, when the window has got the keyboard for its click and can give it away again.
void KeyGridView::mouseReleaseEvent(QMouseEvent* e) {
  drag.Release(*e);
  grid.Click(grid.Row(), grid.Col());
}

void KeyGridView::mouseDoubleClickEvent(QMouseEvent*) {
  if (grid.OnDblClick)
    grid.OnDblClick();
}

} // namespace trekor
