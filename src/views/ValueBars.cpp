#include "views/ValueBars.h"

#include "values/BarPictures.h"
#include "views/Theme.h"

#include <QPainter>

#include <algorithm>
#include <charconv>

namespace trekor {

namespace {

void Scale(QPainter& p, const QRect& track, int tenths, bool lying) {
  p.setPen(QPen(QColor(theme::Line), 1));
  p.setBrush(QColor(theme::Paper));
  p.drawRoundedRect(QRectF(track).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
  const QRect inside = track.adjusted(2, 2, -2, -2);
  QRect filled = inside;
  if (lying)
    filled.setWidth(inside.width() * tenths / bars::Full);
  else
    filled.setTop(inside.bottom() + 1 - inside.height() * tenths / bars::Full);
  p.setRenderHint(QPainter::Antialiasing, false); // edges on whole pixels
  p.fillRect(filled, QColor(theme::Accent));
  p.setRenderHint(QPainter::Antialiasing);
}

void Lamp(QPainter& p, const QRect& cell, bool on) {
  const int size = std::min({cell.width(), cell.height(), 30}) - 6;
  QRectF lamp(0, 0, size, size);
  lamp.moveCenter(QRectF(cell).center());
  p.setPen(QPen(QColor(on ? theme::Good : theme::FaintInk), 2));
  p.setBrush(QColor(on ? theme::Good : theme::Paper));
  p.drawEllipse(lamp);
  if (!on)
    return;
  p.setPen(QPen(QColor(theme::Paper), 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  const QPointF c = lamp.center();
  p.drawPolyline(
      QPolygonF({c + QPointF(-0.24, 0.02) * size, c + QPointF(-0.06, 0.2) * size, c + QPointF(0.26, -0.18) * size}));
}

void Waiting(QPainter& p, const QRect& cell) {
  QRectF plate(0, 0, std::min(cell.width() - 8, 46), std::min(cell.height() - 8, 24));
  plate.moveCenter(QRectF(cell).center());
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(theme::Wait));
  p.drawRoundedRect(plate, 5, 5);
  p.setBrush(QColor(theme::Paper));
  const double step = plate.width() / 4;
  for (int i = -1; i <= 1; ++i)
    p.drawEllipse(plate.center() + QPointF(i * step, 0), 3, 3);
}

QRect Track(const QRect& cell, bool lying) {
  QRect track = cell.adjusted(6, 5, -6, -5);
  if (lying)
    track.setHeight(std::min(track.height(), 20));
  else
    track.setWidth(std::min(track.width(), 22));
  track.moveCenter(cell.center());
  return track;
}

} // namespace

int BarNumber(const std::string& key) {
  if (!key.starts_with("BAR:"))
    return -1;
  int number = -1;
  const char* end = key.data() + key.size();
  return std::from_chars(key.data() + 4, end, number).ptr == end ? number : -1;
}

void DrawBar(QPainter& p, const QRect& cell, int number) {
  const bool lying = cell.width() > 2 * cell.height();
  p.save();
  p.setRenderHint(QPainter::Antialiasing);
  if (number >= 0 && number <= bars::Full)
    Scale(p, Track(cell, lying), number, lying);
  else if (number == bars::Off || number == bars::On)
    Lamp(p, cell, number == bars::On);
  else if (number == bars::Waiting)
    Waiting(p, cell);
  p.restore();
}

} // namespace trekor
