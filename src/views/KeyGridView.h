// The on-screen picture of the keyboard or the keypad: a grid whose merged cells are drawn as keys filling the view.
#pragma once

#include "views/GridDrag.h"

#include <QWidget>

namespace trekor {

class KeyGridView : public QWidget, public GridWidget {
public:
  KeyGridView(Grid& grid, PictureStore& pictures, QWidget* parent);
  void GridChanged() override;
  Grid& GridModel() override { return grid; }
  std::optional<GridCell> CellAt(QPoint global) const override;

protected:
  void paintEvent(QPaintEvent* e) override;
  void mousePressEvent(QMouseEvent* e) override;
  void mouseMoveEvent(QMouseEvent* e) override;
  void mouseReleaseEvent(QMouseEvent* e) override;
  void mouseDoubleClickEvent(QMouseEvent* e) override;

private:
  struct Key {
    int row, col, lastRow, lastCol;
  };
  Key KeyAt(int row, int col) const;
  QRect Place(const Key& key) const;
  void UpdateAround(int row, int col);
  bool IsCurrent(const Key& key) const;
  const Grid::Note& NoteOf(const Key& key) const;
  void PaintKey(QPainter& p, const Key& key);
  double PaintNote(QPainter& p, const Grid::Note& note, const QRectF& inside) const;

  Grid& grid;
  PictureStore& pictures;
  GridDrag drag;
  GridCell painted{}; // the key that was last painted as the current one, also while no change was told
};

} // namespace trekor
