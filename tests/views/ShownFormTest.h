// A form on the screen, with its window in front.
#pragma once

#include "support/FakePlatform.h"
#include "views/FormView.h"
#include "views/FormWindow.h"
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
    window = Newest();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window));
  }
  ~ShownFormTest() override {
    shell.UnloadAll();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  // The window that has come last.
  QWidget* Newest() const {
    const auto all = QApplication::topLevelWidgets();
    const auto other = [this](QWidget* w) { return w != window && dynamic_cast<FormWindow*>(w); };
    return *std::find_if(all.begin(), all.end(), other);
  }
  FakeDrives drives;
  QtShell shell{drives};
  ShownForm form;
  QWidget* window = nullptr;
};

} // namespace trekor::tests
