// A grid in a window of its own, and what stands on the screen there.
#pragma once

#include "views/GridView.h"

#include "forms/Form.h"
#include "support/FakePlatform.h"

#include <QApplication>
#include <QScreen>

#include <gtest/gtest.h>

#include <optional>

namespace trekor::tests {

class ShownGridTest : public testing::Test {
protected:
  void Show(int width, int height) {
    view.emplace(grid, pictures, nullptr);
    view->resize(width, height);
    view->show();
    QApplication::processEvents();
  }
  // What the window's own buffer holds, without drawing anything for the question.
  static QImage OnScreen(GridView& shown) { return shown.screen()->grabWindow(shown.winId()).toImage(); }

  FakeDrives drives;
  PictureStore pictures{drives};
  Form form{"Form"};
  Grid grid{form, "Grid"};
  std::optional<GridView> view;
};

} // namespace trekor::tests
