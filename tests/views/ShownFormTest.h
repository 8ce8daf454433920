// A form on the screen, with its window in front.
#pragma once

#include "support/FakePlatform.h"
#include "views/FormView.h"
#include "views/QtShell.h"

#include <QApplication>
#include <QTest>

#include <gtest/gtest.h>

namespace trekor::tests {

// The form has a box Texts0, which gets the focus.
template <class ShownForm> class ShownFormTest : public testing::Test {
protected:
  ShownFormTest() {
    shell.Load(form);
    shell.Show(form);
    shell.SetFocus(form.Texts0);
    for (QWidget* w : QApplication::topLevelWidgets())
      if (dynamic_cast<FormWindow*>(w))
        window = w;
    EXPECT_TRUE(QTest::qWaitForWindowActive(window));
  }
  ~ShownFormTest() override {
    shell.UnloadAll();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  FakeDrives drives;
  QtShell shell{drives};
  ShownForm form;
  QWidget* window = nullptr;
};

} // namespace trekor::tests
