// A drag of the operator's mouse from a cell of a grid to a cell of a grid in any window of the program. The picture
// follows the mouse as its cursor; there is no loop of its own, so keys, ticks and the link go on as ever. A drag ends
// without a drop when the grid in which it began is hidden, a modal window opens, or its window loses the keyboard, as
// the release may then go to another program.
#pragma once

#include "forms/Grid.h"
#include "views/PictureStore.h"

#include <QMouseEvent>
#include <QPointer>
#include <QWidget>

#include <optional>
#include <string>

namespace trekor {

struct GridCell {
  int row, col;
};

// What others need of a grid's widget.
class GridWidget {
public:
  virtual ~GridWidget() = default;
  virtual void GridChanged() = 0;
  virtual Grid& GridModel() = 0;
  virtual std::optional<GridCell> CellAt(QPoint global) const = 0;
  // What an operator must see of it at all times, on the screen: nothing, but for the collection grid.
  virtual QRect HeadOnScreen() const { return {}; }
};

class GridDrag : public QObject {
public:
  // `surface` gets the mouse events of the grid's widget.
  GridDrag(GridWidget& source, PictureStore& pictures, QWidget& surface);
  ~GridDrag() override;
  GridDrag(const GridDrag&) = delete;
  GridDrag& operator=(const GridDrag&) = delete;
  void Press(const QMouseEvent& e);
  void Move(const QMouseEvent& e);
  void Release(const QMouseEvent& e);

protected:
  bool eventFilter(QObject* watched, QEvent* e) override;

private:
  void ShowPicture();
  void End();

  GridWidget& source;
  PictureStore& pictures;
  QWidget& surface;
  QPointer<QWidget> window; // watched during a drag
  std::string picture;      // of what was picked up, "" nothing
  QPoint from;              // on the screen
  bool shown = false;
  static inline GridDrag* active = nullptr; // there is one mouse
};

} // namespace trekor
