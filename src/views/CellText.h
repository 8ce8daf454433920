// Words that must fit into a cell: they become smaller for it. What doesn't fit even so is cut.
#pragma once

#include <QFont>
#include <QString>

namespace trekor {

struct CellText {
  QFont font;
  QString words;
};

enum class CutEnd {
  Plain, // of a name: as many whole characters as fit, small ones
  Dots   // of a value, which must not be taken for another one: as large as the others
};

// `room` in logical pixels.
CellText FitText(const QString& words, const QFont& font, int room, CutEnd end);

} // namespace trekor
