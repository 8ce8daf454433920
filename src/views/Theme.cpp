#include "views/Theme.h"

#include <QApplication>
#include <QPalette>
#include <QStyleFactory>

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

QPalette Colours() {
  QPalette p;
  const QColor ink(Ink), faint(FaintInk), desk(Desk), paper(Paper), accent(Accent);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
    p.setColor(role, ink);
    p.setColor(QPalette::Disabled, role, faint);
  }
  p.setColor(QPalette::Window, desk);
  p.setColor(QPalette::Base, paper);
  p.setColor(QPalette::Disabled, QPalette::Base, QColor(Band));
  p.setColor(QPalette::AlternateBase, QColor(Band));
  p.setColor(QPalette::Button, QColor(0xFFF8FAFC));
  p.setColor(QPalette::ToolTipBase, QColor(0xFFFFFBE6));
  p.setColor(QPalette::Highlight, accent);
  p.setColor(QPalette::HighlightedText, paper);
  p.setColor(QPalette::Link, accent);
  return p;
}

} // namespace

void Apply(QApplication& app) {
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  QApplication::setPalette(Colours());
  QFont font = QApplication::font();
  font.setPixelSize(BasePixels);
  QApplication::setFont(font);
  app.setQuitOnLastWindowClosed(false); // the logic says when the program ends
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
