// The program's colours and fonts, for reading in a moving vehicle: dark on light by day, light on dark by night. Which
// of the two is shown stands in the application's palette, so that every widget is told and repaints itself.
#pragma once

#include "forms/Control.h"

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QString>

class QApplication;
class QPainter;
class QPixmap;
class QPointF;
class QWidget;

namespace trekor {

namespace theme {

struct Colours {
  QRgb Ink;        // text
  QRgb FaintInk;   // disabled, or without a meaning
  QRgb Paper;      // data, the ground of a bar; by it a widget knows day from night
  QRgb Band;       // titled frames, entry fields that are off
  QRgb Desk;       // behind everything
  QRgb Head;       // fixed rows
  QRgb Button;     // push buttons
  QRgb Tip;        // tool tips
  QRgb Line;       // between cells, borders
  QRgb Accent;     // the current cell, selected text (which is written in Paper)
  QRgb AccentSoft; // selected rows, pressed buttons
};

inline constexpr Colours Day{0xFF0B141C, 0xFF4E5964, 0xFFFFFFFF, 0xFFF2F6FA, 0xFFE9EEF3, 0xFFD9E3EC,
                             0xFFF8FAFC, 0xFFFFFBE6, 0xFFA9B8C6, 0xFF0A4F98, 0xFFCFE3F7};
inline constexpr Colours Night{0xFFD8DEE4, 0xFF98A4B0, 0xFF0D1115, 0xFF20272F, 0xFF1C232B, 0xFF222A32,
                               0xFF2B3540, 0xFF2A2A1C, 0xFF3F4B57, 0xFF6FB1F2, 0xFF1D3A5A};

// What tells a value or a state is the same by day and by night, and is seen on the grounds of both.
inline constexpr QRgb Filled = 0xFF1A6FD8;   // the part of a bar
inline constexpr QRgb Good = 0xFF1C8A3C;     // on
inline constexpr QRgb Wait = 0xFFF0A020;     // waits for its value; the ground of a warning
inline constexpr QRgb AlertInk = 0xFF0B141C; // on Wait

// The light of a picture by night, in parts of that by day. Nothing else changes the colours of a picture.
constexpr double NightLight = 0.5;

QPalette PaletteOf(const Colours& colours);
// The colours that a widget is to be painted in.
const Colours& In(const QWidget& widget);
void Apply(QApplication& app); // by day
void ShowNight(bool on);
// A colour that the program gives to words, made readable by night.
QColor WordColour(QRgb given, const Colours& colours);
// Draws a picture at its upper left corner; by night darkened, on a sheet, as most pictures have dark outlines.
void DrawPicture(QPainter& p, QPointF corner, const QPixmap& picture, const Colours& colours);

// A control's font: what `font` leaves open comes from the form's, then from `base`.
QFont Of(const Font& font, const Font& form, const QFont& base);

} // namespace theme

inline QString Q(const std::string& utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

} // namespace trekor
