// The client end of the link to the control program: connects and reconnects, cuts the byte stream into lines and lines
// into words, sends lines. What a line means is for Dispatch, set by the program.
#pragma once

#include "forms/Form.h"
#include "platform/Platform.h"
#include "state/ProgramState.h"
#include "texts/TextDatabase.h"

#include <array>
#include <functional>
#include <string>
#include <string_view>

namespace trekor {

// The small window "Client Properties".
struct SocketPropForm : Form {
  SocketPropForm() : Form("SocketProp") {}
  Label labels0{*this, "Labels", 0}, labels1{*this, "Labels", 1}, labels2{*this, "Labels", 2},
      labels3{*this, "Labels", 3};
  TextBox RemoteHost{*this, "RemoteHost"}, RemotePort{*this, "RemotePort"};
  TextBox txtState{*this, "txtState"}, txtError{*this, "txtError"};
  CommandButton cmdConnect{*this, "cmdConnect"}, cmdDisConnect{*this, "cmdDisConnect"};
  Timer WDT{*this, "WDT"};
};

class SocketProp : private SocketEvents {
public:
  SocketProp(ProgramState& state, Platform& platform, TextDatabase& texts, Form& mainForm);
  ~SocketProp() override;

  // Called with each whole line, trimmed, as UTF-8. Set before Load. The line is a view that dies when the call pumps.
  std::function<void(std::string_view line)> dispatch;

  // Behind each look of the watchdog, which goes on while prompts keep the tick waiting.
  std::function<void()> OnWatchdog;

  void Load();   // loads the form, begins to connect, starts the watchdog
  void Unload(); // "CTRL EXIT", one second for it to go out, close, save the look

  // Sends the line and CR LF, then lets pending events run. Dropped silently when there is no connection. A line may
  // hold CR LF pairs; it goes out as one send.
  void SendData(std::string_view line);
  void WaitSeconds(double seconds);
  // Lets events run until the first connection attempt has succeeded or failed, two seconds at most: what is sent right
  // after the start would otherwise be dropped.
  void WaitForFirstConnection();

  // While one exists, arriving lines wait in order. When the last one is destroyed they are carried out: at once, or
  // after the line that is being carried out.
  class Hold {
  public:
    explicit Hold(SocketProp& link) : socket(link) { ++socket.holds; }
    ~Hold() { socket.Release(); }
    Hold(const Hold&) = delete;
    Hold& operator=(const Hold&) = delete;

  private:
    SocketProp& socket;
  };

  // Words 1 to 32 of a message; entry 0 stays empty. WordCount is 33 when there were more.
  struct WordList {
    std::array<std::string, 33> Words;
    int WordCount = 0;
  };
  // Kept for words that must outlive their line; the messages of today read SplitViews.
  static WordList Split_Message(std::string_view message);
  // The same without copies: the words lie in the message.
  struct WordViews {
    std::array<std::string_view, 33> Words;
    int WordCount = 0;
  };
  static WordViews SplitViews(std::string_view message);

  SocketPropForm form;

private:
  void SocketConnected() override;
  void SocketDataArrived() override;
  void SocketClosed() override;
  void SocketFailed(int number) override;
  void WireForm();
  void cmdConnect_Click();
  void cmdDisConnect_Click();
  void CloseRoutine();
  void Greeting();
  void Setup_Messages();
  void WDT_Timer();
  void Hide();
  void Send(std::string_view line);
  void Compact();
  bool NextLine(std::string_view& line);
  void DispatchLines();
  void Release();
  void DispatchLine(std::string_view line);

  ProgramState& state;
  Platform& platform;
  TextDatabase& texts;
  Form& mainForm;
  bool Active = false;
  std::string DefaultHost = "127.0.0.1";
  bool firstAttemptSettled = false;
  // Raw bytes: the first `consumed` are done with, the first `searched` hold no further line end. Compacted only when
  // the greater part is done with, so that a flood of lines and a line without an end both cost linear time.
  std::string ReceiveBuffer;
  std::size_t consumed = 0, searched = 0;
  bool plain = true;     // the buffer holds only ASCII; tested for each arrival, not for each line
  bool skipping = false; // the line at `consumed` is too long and is dropped up to its end
  int depth = 0;         // arrivals being dispatched inside one another
  int holds = 0;         // existing Holds
};

} // namespace trekor
