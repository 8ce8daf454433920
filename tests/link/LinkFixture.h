// A link end over the fakes: what arrives is kept line by line, what leaves can be taken line by line.
#pragma once

#include "link/Outgoing.h"
#include "link/SocketProp.h"
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

namespace trekor::tests {

using Lines = std::vector<std::string>;

class LinkFixture : public testing::Test {
protected:
  LinkFixture() {
    state.folders.AppVersion = "1.2.3";
    socket.dispatch = [this](std::string_view line) { Heard(line); };
  }
  virtual void Heard(std::string_view line) { heard.emplace_back(line); }

  void Pump(int times = 1) {
    for (; times > 0; --times)
      fake.pump.ProcessEvents();
  }
  // Loads the window and lets the greeting go by.
  void Connect() {
    socket.Load();
    Pump();
    fake.socket.TakeLines();
  }
  void Arrive(const std::string& bytes) { fake.socket.DeliverNow(bytes); }
  Lines TakeHeard() { return std::exchange(heard, {}); }
  Lines Sent() { return fake.socket.TakeLines(); }

  FakePlatform fake;
  ProgramState state;
  TextDatabase texts{state, fake.platform};
  Form mainForm{"Measurements"};
  SocketProp socket{state, fake.platform, texts, mainForm};
  Lines heard;
};

} // namespace trekor::tests
