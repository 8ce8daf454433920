// Words must be read in sunlight and by night: what is painted is measured, and what the toolkit's own controls are
// given.
#include "ShownGridTest.h"

#include "views/Theme.h"

#include "values/BarPictures.h"

#include <QTest>

#include <cmath>
#include <map>

namespace trekor {
namespace {

constexpr double Readable = 7, Off = 4.5, Seen = 3; // words, words of what is off, shapes

double Luminance(QRgb colour) {
  const auto part = [](int value) {
    const double p = value / 255.0;
    return p <= 0.04045 ? p / 12.92 : std::pow((p + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * part(qRed(colour)) + 0.7152 * part(qGreen(colour)) + 0.0722 * part(qBlue(colour));
}

double Contrast(QRgb a, QRgb b) {
  const double one = Luminance(a), other = Luminance(b);
  return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

TEST(ContrastTest, WordsAreReadableOnEveryGroundByDayAndByNight) {
  using C = theme::Colours;
  const std::tuple<const char*, QRgb C::*, QRgb C::*, double> pairs[] = {
      {"cell", &C::Ink, &C::Paper, Readable},
      {"cell of a grid that is off", &C::FaintInk, &C::Paper, Readable},
      {"cell of the selected row", &C::Ink, &C::AccentSoft, Readable},
      {"head", &C::Ink, &C::Head, Readable},
      {"tool bar", &C::Ink, &C::Paper, Readable},
      {"tool bar, off", &C::FaintInk, &C::Desk, Off},
      {"tool bar, held down", &C::Ink, &C::AccentSoft, Readable},
      {"titled frame", &C::Ink, &C::Band, Readable},
      {"titled frame, off", &C::FaintInk, &C::Band, Off},
      {"key without a meaning", &C::FaintInk, &C::Paper, Off},
      {"current cell", &C::Accent, &C::Paper, Seen},
      {"current cell of the selected row", &C::Accent, &C::AccentSoft, Seen}};
  for (const C* colours : {&theme::Day, &theme::Night}) {
    SCOPED_TRACE(colours == &theme::Day ? "day" : "night");
    for (const auto& [what, words, ground, least] : pairs)
      EXPECT_GE(Contrast(colours->*words, colours->*ground), least) << what;
    EXPECT_GE(Contrast(theme::Filled, colours->Paper), Seen) << "bar";
    EXPECT_GE(Contrast(theme::Good, colours->Head), Seen) << "lamp";
    EXPECT_GE(Contrast(theme::Good, 0xFFFFFFFF), Seen) << "its tick";
  }
  EXPECT_GE(Contrast(theme::AlertInk, theme::Wait), Readable);
}

// Prompt boxes, menus, lists, tips.
TEST(ContrastTest, TheToolkitsOwnControlsAreReadableByDayAndByNight) {
  using P = QPalette;
  const std::pair<P::ColorRole, P::ColorRole> pairs[] = {
      {P::WindowText, P::Window},       {P::Text, P::Base},
      {P::Text, P::AlternateBase},      {P::ButtonText, P::Button},
      {P::ToolTipText, P::ToolTipBase}, {P::HighlightedText, P::Highlight},
      {P::PlaceholderText, P::Base},    {P::Link, P::Base}};
  for (const theme::Colours* colours : {&theme::Day, &theme::Night}) {
    const QPalette palette = theme::PaletteOf(*colours);
    for (const auto& [words, ground] : pairs)
      for (const auto& [group, least] : {std::pair{P::Active, Readable}, {P::Inactive, Readable}, {P::Disabled, Off}})
        EXPECT_GE(Contrast(palette.color(group, words).rgb(), palette.color(group, ground).rgb()), least)
            << words << " on " << ground << " in group " << group << (colours == &theme::Day ? " by day" : " by night");
  }
  for (const QRgb given : {0xFFC00000, 0xFF000000, 0xFF0000FF})
    EXPECT_GE(Contrast(theme::WordColour(given, theme::Night).rgb(), theme::Night.Desk), Readable) << std::hex << given;
}

// The grid in one row of cells: measured from what stands on the screen, against the colour of most pixels of a cell.
class PaintedContrast : public tests::ShownGridTest {
protected:
  PaintedContrast() {
    grid.SetCols(3);
    grid.SetFixedRows(2);
    grid.SetRows(4);
    for (int r = 0; r < 4; ++r)
      for (int c = 0; c < 3; ++c)
        grid.SetText(r, c, "WM");
    grid.SetText(0, 0, "5 keys lost");
    grid.SetCellPicture(0, 0, AlertMark);
    grid.SetZoom(200); // strokes with a pixel of their full colour
    grid.SetSelectionMarks(true);
    grid.SetRow(3);
    Show(900, 400);
  }
  ~PaintedContrast() override { theme::ShowNight(false); }
  // The strongest contrast within a cell, its lines and the frame of the current one left out.
  double In(const QImage& screen, const QRect& cell) const {
    std::map<QRgb, int> colours;
    for (int y = cell.top(); y <= cell.bottom(); ++y)
      for (int x = cell.left(); x <= cell.right(); ++x)
        ++colours[screen.pixel(x, y)];
    const auto ground = std::max_element(colours.begin(), colours.end(),
                                         [](const auto& a, const auto& b) { return a.second < b.second; });
    double strongest = 1;
    for (const auto& [colour, count] : colours)
      strongest = std::max(strongest, Contrast(colour, ground->first));
    return strongest;
  }
};

TEST_F(PaintedContrast, EveryCellOfTheGridIsReadableAndTheNightIsDark) {
  GridLayout layout;
  QFont type = view->font();
  type.setPixelSize(QFontInfo(type).pixelSize() * 2);
  layout.Arrange(grid, QFontMetrics(type), view->viewport()->size());
  for (const bool night : {false, true}) {
    theme::ShowNight(night);
    const auto screen = [this] { return OnScreen(*view); };
    const auto paper = [&] { return screen().pixel(view->width() - 2, view->height() - 2); };
    ASSERT_TRUE(QTest::qWaitFor([&] { return paper() == (night ? theme::Night.Paper : theme::Day.Paper); }, 2000));
    for (int r = 0; r < 4; ++r)
      for (int c = 0; c < 3; ++c)
        EXPECT_GE(In(screen(), layout.CellRect(r, c, c).adjusted(4, 4, -4, -4)), Readable)
            << r << ", " << c << (night ? " by night" : " by day");
  }
}

} // namespace
} // namespace trekor
