#include "datafiles/UnitLabels.h"

#include <array>
#include <cstddef>

namespace trekor {
namespace {

constexpr int BlinkColour = 0xC00000, PlainColour = -1;

const char* StationUnitText(int code) {
  constexpr std::array<const char*, 6> texts = {"KILOMETERS", "METERS", "MILES", "MILES.FEET", "FEET", "YARDS"};
  return code >= 0 && code < static_cast<int>(texts.size()) ? texts[static_cast<std::size_t>(code)] : "";
}

} // namespace

void UnitLabels::Show(const Filed& filed) {
  shown = filed;
  units.SetCaption(shown.us ? "US/ENGLISH" : "METRIC");
  stations.SetCaption(StationUnitText(shown.stationUnit));
  bright = false;
  Paint();
}

void UnitLabels::Clear() {
  shown = {};
  units.SetCaption("");
  stations.SetCaption("");
  Paint();
}

void UnitLabels::Blink() {
  bright = !bright;
  Paint();
}

void UnitLabels::Paint() {
  units.SetForeColor(bright && shown.otherUnits ? BlinkColour : PlainColour);
  stations.SetForeColor(bright && shown.otherStations ? BlinkColour : PlainColour);
}

} // namespace trekor
