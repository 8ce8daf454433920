#include "views/Theme.h"

#include <QApplication>
#include <QPainter>
#include <QPixmap>
#include <QStyleFactory>
#include <QToolTip>
#include <QWidget>

#include <algorithm>
#include <array>
#include <cmath>

namespace trekor::theme {

namespace {

constexpr int BasePixels = 14;

// Families that the databases name and this system may lack; the system's plain face replaces them.
bool IsOldFamily(const std::string& name) {
  constexpr std::array<const char*, 5> old{"MS Sans Serif", "Microsoft Sans Serif", "Times New Roman", "Tahoma",
                                           "Arial"};
  return name.empty() || std::find(old.begin(), old.end(), name) != old.end();
}

} // namespace

QPalette PaletteOf(const Colours& c) {
  QPalette p;
  const QColor ink(c.Ink), faint(c.FaintInk), desk(c.Desk), paper(c.Paper), accent(c.Accent), button(c.Button);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText,
                          QPalette::BrightText, QPalette::PlaceholderText}) {
    p.setColor(role, ink);
    p.setColor(QPalette::Disabled, role, faint);
  }
  p.setColor(QPalette::Window, desk);
  p.setColor(QPalette::Base, paper);
  p.setColor(QPalette::Disabled, QPalette::Base, QColor(c.Band));
  p.setColor(QPalette::AlternateBase, QColor(c.Band));
  p.setColor(QPalette::Button, button);
  p.setColor(QPalette::Light, button.lighter(115)); // edges of the toolkit's own controls
  p.setColor(QPalette::Midlight, button.lighter(107));
  p.setColor(QPalette::Mid, QColor(c.Line));
  p.setColor(QPalette::Dark, QColor(c.Line).darker(125));
  p.setColor(QPalette::ToolTipBase, QColor(c.Tip));
  p.setColor(QPalette::Highlight, accent);
  p.setColor(QPalette::HighlightedText, paper);
  p.setColor(QPalette::Link, accent);
  return p;
}

const Colours& In(const QWidget& widget) {
  const QPalette& p = widget.palette();
  return p.color(QPalette::Active, QPalette::Base).rgb() == Night.Paper ? Night : Day;
}

void Apply(QApplication& app) {
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  QApplication::setPalette(PaletteOf(Day));
  QFont font = QApplication::font();
  font.setPixelSize(BasePixels);
  QApplication::setFont(font);
  app.setQuitOnLastWindowClosed(false); // the logic says when the program ends
}

void ShowNight(bool on) {
  const Colours& colours = on ? Night : Day;
  const QPalette wanted = PaletteOf(colours);
  QPalette menu = wanted;
  if (on) // the toolkit's frame around a menu is as dark as the window that it opens over
    for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button})
      menu.setColor(role, QColor(colours.Head));
  QApplication::setPalette(wanted);
  QApplication::setPalette(menu, "QMenu");
  QToolTip::setPalette(wanted);
}

QColor WordColour(QRgb given, const Colours& colours) {
  constexpr float leastLightness = 0.85F;
  const QColor day = QColor(given).toHsl();
  if (&colours != &Night)
    return QColor(given);
  return QColor::fromHslF(std::max(0.0F, day.hslHueF()), day.hslSaturationF(),
                          std::max(leastLightness, day.lightnessF()));
}

void DrawPicture(QPainter& p, QPointF corner, const QPixmap& picture, const Colours& colours) {
  if (picture.isNull())
    return;
  if (&colours != &Night)
    return p.drawPixmap(corner, picture);
  constexpr double edge = 2, round = 4;
  const QRectF sheet = QRectF(corner, picture.deviceIndependentSize()).adjusted(-edge, -edge, edge, edge);
  p.save();
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(Day.Paper));
  p.drawRoundedRect(sheet, round, round);
  p.drawPixmap(corner, picture);
  p.setBrush(QColor::fromRgbF(0, 0, 0, static_cast<float>(1 - NightLight)));
  p.drawRoundedRect(sheet, round, round);
  p.restore();
}

QFont Of(const Font& font, const Font& form, const QFont& base) {
  QFont result = base;
  const std::string& name = font.Name.empty() ? form.Name : font.Name;
  const double points = font.Size > 0 ? font.Size : form.Size;
  if (!IsOldFamily(name))
    result.setFamily(Q(name));
  if (points > 0) // points of 96 pixels to the inch, as the geometry has them
    result.setPixelSize(std::max(1, static_cast<int>(std::lround(points * 96 / 72))));
  result.setBold(font.Bold || (font.Size <= 0 && form.Bold));
  return result;
}

} // namespace trekor::theme
