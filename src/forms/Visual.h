// What a control and a form have alike: a place, and properties whose changes are told. Geometry is in twips, 1440 to
// the inch, 15 to a pixel at 96 dots an inch.
#pragma once

#include <utility>

namespace trekor {

// What has changed, as the listener is told.
enum class Change {
  Caption,
  Text,
  Value,
  Enabled,
  Visible,
  ToolTip,
  Geometry,
  List,      // the entries of a list, tabs, buttons
  Selection, // ListIndex, selected tab, selected text, current cell
  Picture,
  Colour,
  Font,
  Focus,    // the program has given this control the focus
  Interval, // timers: interval or enabled
  Cells,    // grids: see Grid::TakeChanges
};

class Visual {
public:
  // A control's within its container; a form's Height is the inside, without the title bar. Write through Move.
  int Left = 0, Top = 0, Width = 0, Height = 0;
  void Move(int left, int top, int width, int height);

protected:
  Visual() = default;
  ~Visual() = default;
  virtual void Tell(Change what) = 0;
  // Writes a property: when it is another value, the member takes it and the listener is told.
  template <class Value> void Put(Value& member, Value value, Change what) {
    if (member == value)
      return;
    member = std::move(value);
    Tell(what);
  }
};

} // namespace trekor
