// Words that must fit into a cell: first they become smaller, then they are cut.
#pragma once

#include <QFont>
#include <QString>

namespace trekor {

struct CellText {
  QFont font;
  QString words;
};

enum class CutEnd {
  Plain, // of a name: as many whole characters as fit
  Dots   // of a value, which must not be taken for another one
};

// `room` in logical pixels.
CellText FitText(const QString& words, const QFont& font, int room, CutEnd end);

} // namespace trekor
