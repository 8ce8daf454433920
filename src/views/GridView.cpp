#include "views/GridView.h"

#include "values/BarPictures.h"
#include "views/CellText.h"
#include "views/Theme.h"
#include "views/ValueBars.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace trekor {

namespace {

const QEvent::Type AbsorbChanges = static_cast<QEvent::Type>(QEvent::registerEventType());
constexpr int KeysGoneMilliseconds = 400;
constexpr int MostMoves = 8; // more rows than this at once are drawn anew faster
constexpr int Padding = 6, HeadPadding = 2;

int Flags(Align a) {
  return Qt::AlignVCenter | Qt::TextSingleLine |
         (a == Align::Left    ? Qt::AlignLeft
          : a == Align::Right ? Qt::AlignRight
                              : Qt::AlignHCenter);
}

// Tells over the rows that the keys go to another program. The rows stay readable behind it: what was keyed last is
// asked for just then. The words have a ground of their own.
class Elsewhere : public QLabel {
public:
  explicit Elsewhere(QWidget* parent) : QLabel("The keys go to another program. Click here.", parent) {}

protected:
  // The click gets the keys back, and no cell; without a window manager nobody else does it.
  void mousePressEvent(QMouseEvent*) override { window()->activateWindow(); }
  void paintEvent(QPaintEvent*) override {
    constexpr int veil = 110, type = 34, margin = 12;
    QPainter p(this);
    QColor ground(theme::Wait);
    QFont large = font();
    large.setPixelSize(type);
    large.setBold(true);
    p.setFont(large);
    const int flags = Qt::AlignCenter | Qt::TextWordWrap;
    const QRect words = p.boundingRect(rect().adjusted(margin, 0, -margin, 0), flags, text());
    ground.setAlpha(veil);
    p.fillRect(rect(), ground);
    ground.setAlpha(255);
    p.fillRect(QRect(0, words.top() - margin, width(), words.height() + 2 * margin), ground);
    p.setPen(QColor(theme::AlertInk));
    p.drawText(words, flags, text());
  }
};

} // namespace

GridView::GridView(Grid& model, PictureStore& store, QWidget* parent)
    : QAbstractScrollArea(parent), grid(model), pictures(store), drag(*this, store, *viewport()) {
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::StrongFocus);
  viewport()->setAttribute(Qt::WA_OpaquePaintEvent); // so that rows can be moved as pixels
  viewport()->setAutoFillBackground(false);
  connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, [this](const QWindow* now) {
    now ? keysGone.stop() : keysGone.start();
    if (now)
      ShowElsewhere(false);
  });
  keysGone.setSingleShot(true);
  keysGone.setInterval(KeysGoneMilliseconds);
  connect(&keysGone, &QTimer::timeout, this, [this] { ShowElsewhere(grid.KeysWanted()); });
  grid.TakeChanges(); // the first picture shows everything
  Rearrange();
}

// ---- following the model

void GridView::GridChanged() {
  if (awaited)
    return;
  awaited = true;
  QCoreApplication::postEvent(this, new QEvent(AbsorbChanges), Qt::HighEventPriority);
}

bool GridView::event(QEvent* e) {
  if (e->type() != AbsorbChanges)
    return QAbstractScrollArea::event(e);
  Absorb();
  return true;
}

void GridView::Absorb() {
  awaited = false;
  const Grid::Changes changes = grid.TakeChanges();
  const auto moves = std::count_if(changes.steps.begin(), changes.steps.end(),
                                   [](const auto& s) { return s.sort != Grid::Changes::Step::Cell; });
  // The marks stay in their place when the rows below them move.
  const bool fixedPicture = overtaken || marked || grid.SelectionMarks();
  if (changes.all || moves > MostMoves || (fixedPicture && moves > 0))
    Rearrange();
  else
    Follow(changes);
  overtaken = false;
  BringIntoView(changes.wanted);
  if (changes.selection) {
    ShowSelection();
    if (!grid.KeysWanted())
      ShowElsewhere(false);
    else if (!QGuiApplication::focusWindow())
      keysGone.start();
  }
}

// Rows are moved first; a changed cell is then painted where its row is now.
void GridView::Follow(const Grid::Changes& changes) {
  using Step = Grid::Changes::Step;
  std::vector<Step> cells;
  for (const Step& s : changes.steps) {
    if (s.sort == Step::Cell) {
      cells.push_back(s);
      continue;
    }
    const bool inserted = s.sort == Step::RowInserted;
    for (Step& c : cells)
      c.row += c.row >= s.row ? (inserted ? 1 : -1) : 0;
    MoveRows(s.row, inserted ? layout.RowHeight() : -layout.RowHeight());
  }
  for (const Step& c : cells) {
    if (c.row < 0 || c.row >= grid.Rows() || c.col >= grid.Cols())
      continue;
    if (c.row < grid.FixedRows() && layout.HeightOfFixedRow(grid, c.row) != layout.RowRect(c.row, 0).height())
      return Rearrange();
    viewport()->update(grid.MergeRow(c.row) ? layout.RowRect(c.row, viewport()->width())
                                            : layout.CellRect(c.row, c.col, c.col));
  }
  SetScrollRanges();
}

void GridView::MoveRows(int row, int distance) {
  if (row < grid.FixedRows())
    return viewport()->update();
  QRect moved = layout.RowRect(row, viewport()->width());
  moved.setTop(std::max(moved.top(), layout.FixedHeight()));
  moved.setBottom(viewport()->height() - 1);
  if (!moved.isValid())
    return;
  viewport()->scroll(0, distance, moved); // the toolkit repaints the part that is uncovered
}

// The first row and the first column that are seen stay the first when all becomes larger or smaller.
void GridView::Rearrange() {
  const int row = layout.FirstRow(), col = layout.FirstColumn();
  const bool another = std::exchange(shownZoom, grid.Zoom()) != grid.Zoom();
  Arrange();
  if (another) {
    const QPoint place = layout.PlaceOf(row, col);
    horizontalScrollBar()->setValue(place.x());
    verticalScrollBar()->setValue(place.y());
  }
  viewport()->update();
}

void GridView::Arrange() {
  type = font();
  type.setPixelSize(std::max(1, QFontInfo(font()).pixelSize() * shownZoom / 100));
  layout.Arrange(grid, QFontMetrics(type), viewport()->size());
  SetScrollRanges();
}

// All is drawn again only when another column becomes the first.
void GridView::BringIntoView(int col) {
  if (col > 0)
    horizontalScrollBar()->setValue(layout.ScrollFor(col, viewport()->width()));
}

void GridView::SetScrollRanges() {
  const QSize over = layout.Overhang(viewport()->size(), grid.Rows());
  horizontalScrollBar()->setRange(0, over.width());
  horizontalScrollBar()->setPageStep(std::max(1, viewport()->width() - layout.FirstColumnWidth()));
  horizontalScrollBar()->setSingleStep(std::max(1, layout.FirstColumnWidth() / 3));
  verticalScrollBar()->setRange(0, over.height());
  verticalScrollBar()->setPageStep(std::max(1, viewport()->height() - layout.FixedHeight()));
  verticalScrollBar()->setSingleStep(layout.RowHeight());
  layout.ScrollTo(horizontalScrollBar()->value(), verticalScrollBar()->value());
}

// Drawing the selection repaints everything, so it is done only when one is, or was, visible.
void GridView::ShowSelection() {
  if (marked || grid.SelectionMarks())
    viewport()->update();
  marked = grid.SelectionMarks();
}

void GridView::ShowElsewhere(bool away) {
  if (!away && !elsewhere)
    return;
  if (!elsewhere)
    elsewhere = new Elsewhere(this);
  elsewhere->setGeometry(0, layout.FixedHeight(), width(), std::max(0, height() - layout.FixedHeight()));
  elsewhere->setVisible(away);
  elsewhere->raise();
}

void GridView::resizeEvent(QResizeEvent*) {
  Rearrange();
  if (elsewhere)
    ShowElsewhere(elsewhere->isVisible());
}

void GridView::changeEvent(QEvent* e) {
  QAbstractScrollArea::changeEvent(e);
  if (e->type() == QEvent::FontChange)
    Rearrange();
}

void GridView::scrollContentsBy(int, int) {
  layout.ScrollTo(horizontalScrollBar()->value(), verticalScrollBar()->value());
  viewport()->update();
}

// ---- painting

void GridView::paintEvent(QPaintEvent* e) {
  overtaken |= awaited;
  colours = &theme::In(*this);
  QPainter p(viewport());
  for (const QRect& area : e->region()) {
    const int last = std::min(grid.Rows() - 1, layout.RowAt(area.bottom()));
    // Data rows before fixed ones: a row half scrolled away must not cover them.
    for (int r = std::max(grid.FixedRows(), layout.RowAt(std::max(area.top(), layout.FixedHeight()))); r <= last; ++r)
      PaintRow(p, r, area);
    for (int r = layout.RowAt(area.top()); r <= std::min(last, grid.FixedRows() - 1); ++r)
      PaintRow(p, r, area);
    const int end = layout.RowRect(grid.Rows(), 0).top();
    if (area.bottom() >= end)
      p.fillRect(area.intersected(QRect(0, end, viewport()->width(), viewport()->height())), QColor(colours->Paper));
  }
  if (grid.SelectionMarks())
    PaintCurrentCell(p);
}

void GridView::PaintRow(QPainter& p, int row, const QRect& area) {
  const int width = viewport()->width();
  const int firstWidth = layout.FirstColumnWidth();
  const int whole = layout.LastColumn(width);
  if (grid.Cols() > 1 && area.right() >= firstWidth) {
    p.save();
    p.setClipRect(QRect(firstWidth, 0, width - firstWidth, viewport()->height()), Qt::IntersectClip);
    const int from = layout.ColumnAt(std::max(area.left(), firstWidth));
    for (int c = from < 0 ? grid.Cols() : FirstEqual(row, from); c <= whole && c < grid.Cols();) {
      const int last = LastEqual(row, c);
      if (layout.CellRect(row, c, last).left() > area.right())
        break;
      PaintCell(p, row, c, last);
      c = last + 1;
    }
    p.restore();
  }
  if (grid.Cols() > 0 && area.left() < firstWidth)
    PaintCell(p, row, 0, 0);
  const int end = grid.Cols() > 0 ? layout.CellRect(row, whole, LastEqual(row, whole)).right() + 1 : 0;
  if (end <= area.right()) {
    QRect rest = layout.RowRect(row, width);
    rest.setLeft(end);
    p.fillRect(rest, QColor(row < grid.FixedRows() ? colours->Head : colours->Paper));
  }
}

// Merged cells: adjacent ones of equal text along a merged row. The first column is never merged, as it doesn't scroll.
// Merged columns are for the key pictures; here two equal values one above the other are two values.
int GridView::LastEqual(int row, int first) const {
  int last = first;
  if (grid.MergeRow(row) && !grid.Text(row, first).empty())
    while (last + 1 < grid.Cols() && grid.Text(row, last + 1) == grid.Text(row, first))
      ++last;
  return last;
}

int GridView::FirstEqual(int row, int col) const {
  int first = col;
  if (grid.MergeRow(row) && !grid.Text(row, col).empty())
    while (first > 1 && grid.Text(row, first - 1) == grid.Text(row, col))
      --first;
  return first;
}

bool GridView::Chosen(int row) const {
  return grid.SelectionMarks() && row == grid.Row() && row >= grid.FixedRows();
}

void GridView::PaintCell(QPainter& p, int row, int first, int last) {
  const QRect cell = layout.CellRect(row, first, last);
  const bool head = row < grid.FixedRows();
  p.fillRect(cell, QColor(head ? colours->Head : Chosen(row) ? colours->AccentSoft : colours->Paper));
  PaintContent(p, row, first, last, cell);
  p.setPen(QColor(colours->Line));
  p.drawLine(cell.bottomLeft(), cell.bottomRight());
  p.drawLine(cell.topRight(), cell.bottomRight());
}

void GridView::PaintContent(QPainter& p, int row, int first, int last, const QRect& cell) {
  const std::string& key = grid.CellPicture(row, first);
  if (const int bar = BarNumber(key); bar >= 0)
    DrawBar(p, cell, bar, *colours, shownZoom / 100.0);
  else if (key == AlertMark)
    p.fillRect(cell, QColor(theme::Wait));
  else if (!key.empty()) {
    const int side = std::min(cell.height(), cell.width()) - 6;
    const QPixmap picture = pictures.Scaled(key, side, devicePixelRatioF());
    QRect place(QPoint(), picture.deviceIndependentSize().toSize());
    place.moveCenter(cell.center());
    theme::DrawPicture(p, place.topLeft(), picture, *colours);
  }
  if (!grid.Text(row, first).empty())
    PaintText(p, row, first, last, cell);
}

void GridView::PaintText(QPainter& p, int row, int first, int last, const QRect& cell) {
  const bool head = row < grid.FixedRows(), merged = first != last;
  const bool alert = grid.CellPicture(row, first) == AlertMark;
  p.setPen(QColor(alert ? theme::AlertInk : isEnabled() || head ? colours->Ink : colours->FaintInk));
  const Align align = head && first > 0 ? Align::Centre : grid.CellAlignment(row, first);
  // A merged text that begins left of the view is read from the view's edge.
  const int padding = head && first > 0 ? HeadPadding : Padding;
  QRect place = cell.adjusted(padding, 0, -padding, 0);
  if (merged)
    place.setLeft(std::max(place.left(), layout.FirstColumnWidth() + Padding));
  QFont wanted = type;
  wanted.setBold(head);
  // A merged text goes on beyond the view, where it can be scrolled to.
  const CellText fitted = merged ? CellText{wanted, Q(grid.Text(row, first))}
                                 : FitText(Q(grid.Text(row, first)), wanted, place.width(),
                                           head && first > 0 ? CutEnd::Plain : CutEnd::Dots);
  p.setFont(fitted.font);
  p.drawText(place, Flags(align), fitted.words);
}

void GridView::PaintCurrentCell(QPainter& p) {
  const int row = grid.Row(), col = grid.Col();
  if (row < grid.FixedRows() || row >= grid.Rows() || col >= grid.Cols())
    return;
  const int first = col > 0 ? FirstEqual(row, col) : 0;
  if (first > layout.LastColumn(viewport()->width()))
    return;
  p.setClipRect(
      QRect(col > 0 ? layout.FirstColumnWidth() : 0, layout.FixedHeight(), viewport()->width(), viewport()->height()));
  p.setPen(QPen(QColor(colours->Accent), 3));
  p.setBrush(Qt::NoBrush);
  p.drawRect(layout.CellRect(row, first, col > 0 ? LastEqual(row, first) : 0).adjusted(1, 1, -2, -2));
}

// ---- the operator's acts

std::optional<GridCell> GridView::CellAt(QPoint global) const {
  const QPoint at = viewport()->mapFromGlobal(global);
  const GridCell cell{layout.RowAt(at.y()), layout.ColumnAt(at.x())};
  if (!viewport()->rect().contains(at) || cell.row >= grid.Rows() || cell.col < 0 ||
      cell.col > layout.LastColumn(viewport()->width()))
    return std::nullopt;
  return cell;
}

QRect GridView::HeadOnScreen() const {
  const QRect head(0, 0, viewport()->width(), layout.FixedHeight() + layout.RowHeight());
  return head.intersected(viewport()->rect()).translated(viewport()->mapToGlobal(QPoint()));
}

void GridView::mousePressEvent(QMouseEvent* e) {
  const auto cell = CellAt(e->globalPosition().toPoint());
  if (e->button() != Qt::LeftButton || !cell)
    return;
  drag.Press(*e);
  grid.SelectCell(cell->row, cell->col);
  grid.Click(cell->row, cell->col);
}

void GridView::mouseMoveEvent(QMouseEvent* e) {
  drag.Move(*e);
}

void GridView::mouseReleaseEvent(QMouseEvent* e) {
  drag.Release(*e);
}

void GridView::mouseDoubleClickEvent(QMouseEvent* e) {
  mousePressEvent(e);
  if (grid.OnDblClick)
    grid.OnDblClick();
}

} // namespace trekor
