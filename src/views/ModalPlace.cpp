#include "views/ModalPlace.h"

#include <algorithm>

namespace trekor {

namespace {

constexpr int LowestWindow = 60; // with its frame; a lower one could not be read

QRect Lowered(const QSize& size, int left, const Surroundings& around) {
  const int below = around.screen.bottom() - around.kept.bottom(), above = around.kept.top() - around.screen.top();
  const int height = std::min(size.height(), std::max({below, above, LowestWindow}));
  const int top = below >= above ? around.screen.bottom() + 1 - height : around.screen.top();
  return {left, top, size.width(), height};
}

} // namespace

QRect OntoScreen(QRect place, const QRect& screen) {
  place.setSize(place.size().boundedTo(screen.size()));
  place.moveLeft(std::clamp(place.left(), screen.left(), screen.right() + 1 - place.width()));
  place.moveTop(std::clamp(place.top(), screen.top(), screen.bottom() + 1 - place.height()));
  return place;
}

QRect PlaceInClear(const QRect& own, const Surroundings& around) {
  const QRect place = OntoScreen(own, around.screen);
  const QRect &kept = around.kept, &over = around.over;
  if (!place.intersects(kept))
    return place;
  const QSize size = place.size();
  const QPoint middle(over.left() + (over.width() - size.width()) / 2, over.top());
  const int left = OntoScreen({middle, size}, around.screen).left();
  const int low = std::min(over.bottom(), around.screen.bottom()) + 1 - size.height();
  const QPoint corners[] = {{left, std::max(low, kept.bottom() + 1)},
                            {left, kept.top() - size.height()},
                            {kept.right() + 1, kept.top()},
                            {kept.left() - size.width(), kept.top()}};
  for (const QPoint corner : corners)
    if (around.screen.contains(QRect(corner, size)))
      return {corner, size};
  return Lowered(size, left, around);
}

} // namespace trekor
