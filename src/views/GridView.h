// The collection grid on the screen. It paints the cells itself, and only those that have changed: a new row moves the
// picture down and paints one row. Changes are taken from the model once in a turn of the event loop, so that a tick
// makes one picture.
#pragma once

#include "forms/Grid.h"
#include "views/GridDrag.h"
#include "views/GridLayout.h"
#include "views/PictureStore.h"

#include <QAbstractScrollArea>
#include <QFont>
#include <QTimer>

class QLabel;

namespace trekor {

namespace theme {
struct Colours;
}

class GridView : public QAbstractScrollArea, public GridWidget {
public:
  GridView(Grid& grid, PictureStore& pictures, QWidget* parent);
  void GridChanged() override;
  Grid& GridModel() override { return grid; }
  std::optional<GridCell> CellAt(QPoint global) const override;
  QRect HeadOnScreen() const override; // with the newest row

protected:
  bool event(QEvent* e) override;
  void paintEvent(QPaintEvent* e) override;
  void resizeEvent(QResizeEvent* e) override;
  void changeEvent(QEvent* e) override;
  void scrollContentsBy(int dx, int dy) override;
  void mousePressEvent(QMouseEvent* e) override;
  void mouseMoveEvent(QMouseEvent* e) override;
  void mouseReleaseEvent(QMouseEvent* e) override;
  void mouseDoubleClickEvent(QMouseEvent* e) override;

private:
  void Absorb();
  void Follow(const Grid::Changes& changes);
  void MoveRows(int row, int distance);
  void Rearrange();
  void Arrange();
  void BringIntoView(int col);
  void SetScrollRanges();
  void ShowSelection();
  void ShowElsewhere(bool away);
  void PaintRow(QPainter& p, int row, const QRect& area);
  void PaintCell(QPainter& p, int row, int first, int last);
  void PaintContent(QPainter& p, int row, int first, int last, const QRect& cell);
  void PaintText(QPainter& p, int row, int first, int last, const QRect& cell);
  void PaintCurrentCell(QPainter& p);
  bool Chosen(int row) const;
  int LastEqual(int row, int first) const;
  int FirstEqual(int row, int col) const;

  Grid& grid;
  PictureStore& pictures;
  GridLayout layout;
  QFont type; // of the cells, with the zoom
  int shownZoom = 100;
  const theme::Colours* colours = nullptr; // as last painted
  GridDrag drag;
  QLabel* elsewhere = nullptr; // over the rows while the keys of a run go to no window of the program
  QTimer keysGone;             // a moment, as no window has the keys while they go from one to the next
  bool awaited = false;        // an Absorb is queued
  bool overtaken = false;      // something was painted meanwhile, so the pixels can't be moved
  bool marked = false;         // selection marks as last painted
};

} // namespace trekor
