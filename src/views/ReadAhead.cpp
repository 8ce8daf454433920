#include "views/ReadAhead.h"

#include <QFont>
#include <QGuiApplication>
#include <QImage>
#include <QImageReader>
#include <QPainter>

namespace trekor {

namespace {

void Read(const QFont& font) {
  QImage page(8, 8, QImage::Format_ARGB32_Premultiplied);
  QPainter painter(&page);
  painter.setFont(font);
  painter.drawText(0, 8, "0"); // the toolkit looks for its fonts at the first character
  QImageReader::supportedImageFormats();
}

// A font with data of its own: those of the application's are read and written by its widgets meanwhile.
QFont OwnFont() {
  QFont font = QGuiApplication::font();
  font.setBold(true);
  return font;
}

} // namespace

ReadAhead::ReadAhead() : reader([font = OwnFont()] { Read(font); }) {}

} // namespace trekor
