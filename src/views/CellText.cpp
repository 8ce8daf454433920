#include "views/CellText.h"

#include <QFontInfo>
#include <QFontMetrics>
#include <QTextBoundaryFinder>

#include <algorithm>

namespace trekor {

namespace {

constexpr double Smallest = 0.65; // of the font's size

QString WholeCharacters(const QString& words, const QFontMetrics& metrics, int room) {
  QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, words);
  characters.toEnd();
  qsizetype end = words.size();
  while (end > 0 && metrics.horizontalAdvance(words, static_cast<int>(end)) > room)
    end = std::max<qsizetype>(characters.toPreviousBoundary(), 0);
  return words.left(end);
}

} // namespace

// By whole pixels: the width of a text doesn't follow its size evenly.
CellText FitText(const QString& words, const QFont& font, int room, CutEnd end) {
  CellText fitted{font, words};
  const int full = QFontInfo(font).pixelSize(), least = std::max(1, static_cast<int>(full * Smallest));
  for (int size = full; QFontMetrics(fitted.font).horizontalAdvance(words) > room; --size) {
    if (size < least) {
      const QFontMetrics metrics(fitted.font);
      fitted.words =
          end == CutEnd::Dots ? metrics.elidedText(words, Qt::ElideRight, room) : WholeCharacters(words, metrics, room);
      break;
    }
    fitted.font.setPixelSize(size);
  }
  return fitted;
}

} // namespace trekor
