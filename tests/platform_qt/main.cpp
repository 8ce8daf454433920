#include <QCoreApplication>

#include <gtest/gtest.h>

#include <cstdlib>

int main(int argc, char** argv) {
  setenv("QT_NO_GLIB", "1", 1); // the loop that the program runs on
  QCoreApplication app(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
