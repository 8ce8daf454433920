#include "forms/Visual.h"

namespace trekor {

void Visual::Move(int left, int top, int width, int height) {
  if (left == Left && top == Top && width == Width && height == Height)
    return;
  Left = left;
  Top = top;
  Width = width;
  Height = height;
  Tell(Change::Geometry);
}

} // namespace trekor
