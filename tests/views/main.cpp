#include "views/Theme.h"

#include <QApplication>

#include <gtest/gtest.h>

#include <cstdlib>

int main(int argc, char** argv) {
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  QApplication app(argc, argv);
  trekor::theme::Apply(app);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
