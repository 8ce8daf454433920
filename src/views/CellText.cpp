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

// The largest font in which the words fit, or the smallest one. By whole pixels: the width of a text doesn't follow its
// size evenly.
QFont Smaller(const QString& words, QFont font, int room) {
  const int full = QFontInfo(font).pixelSize(), least = std::max(1, static_cast<int>(full * Smallest));
  for (int size = full - 1; size >= least && QFontMetrics(font).horizontalAdvance(words) > room; --size)
    font.setPixelSize(size);
  return font;
}

} // namespace

CellText FitText(const QString& words, const QFont& font, int room, CutEnd end) {
  if (QFontMetrics(font).horizontalAdvance(words) <= room) // nearly always
    return {font, words};
  const QFont smaller = Smaller(words, font, room);
  const QFontMetrics metrics(smaller);
  if (metrics.horizontalAdvance(words) <= room)
    return {smaller, words};
  if (end == CutEnd::Plain)
    return {smaller, WholeCharacters(words, metrics, room)};
  return {font, QFontMetrics(font).elidedText(words, Qt::ElideRight, room)};
}

} // namespace trekor
