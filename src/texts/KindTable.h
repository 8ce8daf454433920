// What the text columns and the column Value of a form's table mean for each kind of control. Loading and saving walk
// this one table; every kind has a row.
//
// Stored texts are fixed by databases in the field: lists are joined with "|", widths (twips) with ";", flags are "-1"
// and "0", indexes count from 0, and -1 is no entry.
#pragma once

#include "forms/Control.h"

#include <string>

namespace trekor {

using ControlReader = std::string (*)(const Control& control);
using ControlWriter = void (*)(Control& control, const std::string& text);

// One property of a kind as text. Both functions null: the kind has no such property and its column is left alone. A
// text that does not suit the control is skipped.
struct TextProperty {
  ControlReader read = nullptr;
  ControlWriter write = nullptr;
  char separator = 0; // of a list
};

struct KindRow {
  Kind kind;
  const char* typeName;
  bool placed; // has a place and a size on the form
  bool shown;  // has Visible and a tool tip
  TextProperty caption, value;
};

const KindRow& KindRowOf(Kind kind);

} // namespace trekor
