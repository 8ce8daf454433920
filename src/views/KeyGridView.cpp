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
  const Grid::Changes changes = grid.TakeChanges();
  if (changes.all)
    return update();
  if (changes.selection) {
    update(Place(KeyAt(painted.row, painted.col)));
    update(Place(KeyAt(grid.Row(), grid.Col())));
  }
  for (const Grid::Changes::Step& step : changes.steps)
    UpdateAround(step.row, step.col);
}

// A text that changes may part a key in two, or make one of two: along the row, and down a merged column.
void KeyGridView::UpdateAround(int row, int col) {
  if (grid.MergeCol(col))
    return update();
  const QRect place = Place(KeyAt(row, col));
  update(0, place.top(), width(), place.height());
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

bool KeyGridView::IsCurrent(const Key& k) const {
  return (hasFocus() || grid.SelectionMarks()) && grid.Row() >= k.row && grid.Row() <= k.lastRow &&
         grid.Col() >= k.col && grid.Col() <= k.lastCol;
}

// It is in one of the cells of a large key.
const Grid::Note& KeyGridView::NoteOf(const Key& k) const {
  for (int r = k.row; r <= k.lastRow; ++r)
    for (int c = k.col; c <= k.lastCol; ++c)
      if (const Grid::Note& note = grid.CellNote(r, c); !note.text.empty())
        return note;
  return grid.CellNote(-1, -1);
}

void KeyGridView::paintEvent(QPaintEvent* e) {
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing);
  for (int r = 0; r < grid.Rows(); ++r)
    for (int c = 0; c < grid.Cols(); ++c)
      if (const Key k = KeyAt(r, c); k.row == r && k.col == c && e->rect().intersects(Place(k)))
        PaintKey(p, k);
}

void KeyGridView::PaintKey(QPainter& p, const Key& k) {
  const QString text = Q(grid.Text(k.row, k.col)).trimmed();
  const std::string& picture = grid.CellPicture(k.row, k.col);
  const QRectF cap = QRectF(Place(k)).adjusted(2.5, 2.5, -2.5, -2.5);
  const Grid::Note& note = NoteOf(k);
  const bool marked = IsCurrent(k);
  if (marked)
    painted = {k.row, k.col};
  const theme::Colours& colours = theme::In(*this);
  p.setPen(QPen(QColor(marked ? colours.Accent : colours.Line), marked ? 3 : 1));
  p.setBrush(QColor(text.isEmpty() ? colours.Desk : note.strong ? colours.AccentSoft : colours.Paper));
  p.drawRoundedRect(cap, 6, 6);
  p.setPen(QColor(picture.empty() ? colours.FaintInk : colours.Ink));
  const QRectF inside = cap.adjusted(6, 3, -6, -3);
  p.drawText(inside, picture.empty() ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignTop, text);
  if (picture.empty())
    return;
  const double words = std::max<double>(p.fontMetrics().horizontalAdvance(text), PaintNote(p, note, inside));
  // The letter keeps its corner. The picture stands beside it and the value, or on a narrow key below the letter.
  constexpr double largest = 64, gap = 4;
  const double beside = std::min({inside.width() - words - gap, inside.height(), largest});
  const double below =
      note.text.empty() ? std::min({inside.width(), inside.height() - p.fontMetrics().height(), largest}) : 0;
  const QPixmap drawn = pictures.Scaled(picture, static_cast<int>(std::max(beside, below)), devicePixelRatioF());
  const QSizeF size = drawn.deviceIndependentSize();
  QPointF corner = inside.center() - QPointF(size.width(), size.height()) / 2;
  if (beside < below)
    corner.setY(inside.bottom() - size.height());
  else
    corner.setX(std::max(corner.x(), inside.left() + words + gap));
  theme::DrawPicture(p, corner, drawn, colours);
}

// In bold figures below the letter. Gives its width.
double KeyGridView::PaintNote(QPainter& p, const Grid::Note& note, const QRectF& inside) const {
  if (note.text.empty())
    return 0;
  QFont bold = p.font();
  bold.setBold(true);
  const QFontMetricsF metrics(bold);
  const QString text = metrics.elidedText(Q(note.text), Qt::ElideRight, inside.width() / 2);
  const QFont before = p.font();
  p.setFont(bold);
  p.drawText(inside, Qt::AlignLeft | Qt::AlignBottom, text);
  p.setFont(before);
  return metrics.horizontalAdvance(text);
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
