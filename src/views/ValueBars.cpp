#include "views/ValueBars.h"

#include "values/BarPictures.h"

#include <QPainter>

#include <algorithm>
#include <charconv>
#include <cmath>

namespace trekor {

namespace {

// The pictures, at one size and in one set of colours. Pixels of scale 1.
struct Bars {
  QPainter& p;
  const theme::Colours& colours;
  double scale;

  int Size(int pixels) const { return static_cast<int>(std::lround(pixels * scale)); }
  void Scale(const QRect& track, int tenths, bool lying) const;
  void Lamp(const QRect& cell, bool on) const;
  void Waiting(const QRect& cell) const;
  QRect Track(const QRect& cell, bool lying) const;
};

void Bars::Scale(const QRect& track, int tenths, bool lying) const {
  p.setPen(QPen(QColor(colours.Line), 1));
  p.setBrush(QColor(colours.Paper));
  p.drawRoundedRect(QRectF(track).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
  const QRect inside = track.adjusted(2, 2, -2, -2);
  QRect filled = inside;
  if (lying)
    filled.setWidth(inside.width() * tenths / bars::Full);
  else
    filled.setTop(inside.bottom() + 1 - inside.height() * tenths / bars::Full);
  p.setRenderHint(QPainter::Antialiasing, false); // edges on whole pixels
  p.fillRect(filled, QColor(theme::Filled));
  p.setRenderHint(QPainter::Antialiasing);
}

void Bars::Lamp(const QRect& cell, bool on) const {
  const int size = std::min({cell.width(), cell.height(), Size(30)}) - 6;
  QRectF lamp(0, 0, size, size);
  lamp.moveCenter(QRectF(cell).center());
  p.setPen(QPen(QColor(on ? theme::Good : colours.FaintInk), Size(2)));
  p.setBrush(QColor(on ? theme::Good : colours.Paper));
  p.drawEllipse(lamp);
  if (!on)
    return;
  p.setPen(QPen(QColor(Qt::white), Size(3), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  const QPointF c = lamp.center();
  p.drawPolyline(
      QPolygonF({c + QPointF(-0.24, 0.02) * size, c + QPointF(-0.06, 0.2) * size, c + QPointF(0.26, -0.18) * size}));
}

void Bars::Waiting(const QRect& cell) const {
  QRectF plate(0, 0, std::min(cell.width() - 8, Size(46)), std::min(cell.height() - 8, Size(24)));
  plate.moveCenter(QRectF(cell).center());
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(theme::Wait));
  p.drawRoundedRect(plate, 5, 5);
  p.setBrush(QColor(theme::AlertInk));
  const double step = plate.width() / 4, dot = 3 * scale;
  for (int i = -1; i <= 1; ++i)
    p.drawEllipse(plate.center() + QPointF(i * step, 0), dot, dot);
}

QRect Bars::Track(const QRect& cell, bool lying) const {
  QRect track = cell.adjusted(6, 5, -6, -5);
  if (lying)
    track.setHeight(std::min(track.height(), Size(20)));
  else
    track.setWidth(std::min(track.width(), Size(22)));
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

void DrawBar(QPainter& p, const QRect& cell, int number, const theme::Colours& colours, double scale) {
  const Bars picture{p, colours, scale};
  const bool lying = cell.width() > 2 * cell.height();
  p.save();
  p.setRenderHint(QPainter::Antialiasing);
  if (number >= 0 && number <= bars::Full)
    picture.Scale(picture.Track(cell, lying), number, lying);
  else if (number == bars::Off || number == bars::On)
    picture.Lamp(cell, number == bars::On);
  else if (number == bars::Waiting)
    picture.Waiting(cell);
  p.restore();
}

} // namespace trekor
