// The program's colours and fonts: light, with high contrast, as it is read in a moving vehicle by daylight.
#pragma once

#include "forms/Control.h"

#include <QColor>
#include <QFont>
#include <QString>

class QApplication;

namespace trekor {

namespace theme {

inline constexpr QRgb Ink = 0xFF14202B;        // text
inline constexpr QRgb FaintInk = 0xFF8A97A3;   // disabled, or without a meaning
inline constexpr QRgb Paper = 0xFFFFFFFF;      // data
inline constexpr QRgb Band = 0xFFF2F6FA;       // titled frames, entry fields that are off
inline constexpr QRgb Desk = 0xFFE9EEF3;       // behind everything
inline constexpr QRgb Head = 0xFFD9E3EC;       // fixed rows
inline constexpr QRgb Line = 0xFFB9C6D2;       // between cells, borders
inline constexpr QRgb Accent = 0xFF0B5CAD;     // selected, filled
inline constexpr QRgb AccentSoft = 0xFFCFE3F7; // selected rows, pressed buttons
inline constexpr QRgb Good = 0xFF1B8A3A;       // on
inline constexpr QRgb Wait = 0xFFE08A00;       // waits for its value

void Apply(QApplication& app);
// A control's font: what `font` leaves open comes from the form's, then from `base`.
QFont Of(const Font& font, const Font& form, const QFont& base);

} // namespace theme

inline QString Q(const std::string& utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

} // namespace trekor
