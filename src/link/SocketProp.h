// The client end of the link to the control program: makes and re-makes the connection, cuts the byte stream into lines
// and lines into words, sends lines. What the lines mean is the dispatcher's business, which is handed in from above.
#pragma once

#include "forms/Form.h"
#include "platform/Platform.h"
#include "state/ProgramState.h"
#include "texts/Texts.h"

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

  // Called with each whole line, trimmed, its code page already turned into UTF-8. Set before Load.
  std::function<void(std::string_view line)> dispatch;

  void Load();   // dresses the form, begins to connect, starts the watchdog
  void Unload(); // "CTRL EXIT", one second for it to go out, close, save the look

  // Sends the line and CR LF when the socket is connected, then lets pending events run. Otherwise drops it silently.
  // A line may hold CR LF pairs; it goes out as one send.
  void SendData(std::string_view line);
  void WaitSeconds(double seconds);
  // Pumps until the connection attempt of the start has succeeded or failed, a short while at most: what is sent at
  // once after the start would be dropped otherwise.
  void WaitForFirstConnection();

  // While one stands, lines that arrive wait in their order. They are carried out when it is gone: at once, or behind
  // the line that is being carried out now.
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
  // Raw bytes: `consumed` of them are done with, the line end was sought in the first `searched`. One buffer with two
  // moving marks, compacted by halves, so that a flood of lines and a line without an end both cost linear time.
  std::string ReceiveBuffer;
  std::size_t consumed = 0, searched = 0;
  bool plain = true;     // the buffer holds ASCII alone: asked once an arrival, not once a line
  bool skipping = false; // the line that goes on at `consumed` has grown too long and is dropped up to its end
  int depth = 0;         // arrivals being dispatched inside one another
  int holds = 0;
};

} // namespace trekor
