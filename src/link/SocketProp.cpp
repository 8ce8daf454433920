#include "link/SocketProp.h"

#include "platform/WaitSeconds.h"
#include "values/CodePage.h"
#include "values/KeyCodes.h"
#include "values/NumberText.h"
#include "values/Text.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <iostream>

namespace trekor {
namespace {

constexpr int WatchdogPeriod = 5000;       // ms
constexpr double FirstConnectionLimit = 2; // s
constexpr char Quote = '"';
// Far longer than any line of the protocol. More without an end is garbage and must not fill the memory.
constexpr std::size_t LongestLine = std::size_t{1} << 20;
// A peer that floods could nest an arrival in each answer's pump until the stack is full; deeper arrivals only add to
// the buffer, which the innermost dispatch empties when its line is done.
constexpr int DeepestArrival = 16;

const char* StateWord(SocketState state) {
  constexpr std::array<const char*, 10> words = {"Closed",         "Open",          "Listening",  "Connection pending",
                                                 "Resolving Host", "Host Resolved", "Connecting", "Connected",
                                                 "Peer Closing",   "Error"};
  const auto i = static_cast<std::size_t>(state);
  return i < words.size() ? words[i] : "";
}

// An entry field that is empty or says "Default", in any case, leaves the choice to the program.
std::string Entered(const TextBox& box) {
  std::string text = Trim(box.Text());
  return SameText(text, "Default") ? "" : text;
}

// No byte that means another character in Windows-1252 than in UTF-8.
bool IsPlain(std::string_view bytes) {
  std::uint64_t all = 0; // eight at a time: every byte of a burst comes through here
  std::size_t at = 0;
  for (; at + sizeof all <= bytes.size(); at += sizeof all) {
    std::uint64_t eight = 0;
    std::memcpy(&eight, bytes.data() + at, sizeof eight);
    all |= eight;
  }
  for (; at < bytes.size(); ++at)
    all |= static_cast<unsigned char>(bytes[at]);
  return (all & 0x8080808080808080U) == 0;
}

void ShowDefault(TextBox& box) {
  if (Trim(box.Text()).empty())
    box.SetText("Default");
}

} // namespace

SocketProp::SocketProp(ProgramState& programState, Platform& seams, TextDatabase& textDatabase, Form& measurements)
    : state(programState), platform(seams), texts(textDatabase), mainForm(measurements) {
  WireForm();
}

SocketProp::~SocketProp() {
  platform.socket.SetEvents(nullptr);
}

void SocketProp::WireForm() {
  form.SetCaption("Client Properties");
  form.txtState.ReadOnly = form.txtError.ReadOnly = true;
  form.cmdConnect.OnClick = [this] { cmdConnect_Click(); };
  form.cmdDisConnect.OnClick = [this] { cmdDisConnect_Click(); };
  form.WDT.OnTimer = [this] { WDT_Timer(); };
  form.OnKeyDown = [this](int key, int shift) {
    if (texts.FormKeyDown(form, key, shift))
      return true;
    if (key == keys::Esc)
      Hide();
    return key == keys::Esc;
  };
  form.OnQueryUnload = [this] { // only hidden: the link lives to the end of the program
    Hide();
    return false;
  };
}

void SocketProp::Load() {
  Active = false;
  texts.LoadForm(form);
  ShowDefault(form.RemoteHost);
  ShowDefault(form.RemotePort);
  ReceiveBuffer.clear();
  consumed = searched = 0;
  skipping = false;
  platform.socket.SetEvents(this);
  cmdConnect_Click();
  form.WDT.SetInterval(WatchdogPeriod);
  form.WDT.SetRunning(true);
  Active = true;
}

void SocketProp::Hide() {
  platform.shell.Hide(form);
}

void SocketProp::Unload() {
  if (!form.Loaded) // the program was closed before the link was loaded: there is no look to store
    return;
  Active = false;
  SendData("CTRL EXIT");
  platform.pump.ProcessEvents();
  WaitSeconds(1); // for the text to go out
  form.WDT.SetRunning(false);
  CloseRoutine();
  texts.UnloadForm(form);
}

void SocketProp::SendData(std::string_view line) {
  if (platform.socket.State() != SocketState::Connected)
    return;
  Send(line);
  platform.pump.ProcessEvents();
}

void SocketProp::Send(std::string_view line) {
  std::string bytes;
  bytes.reserve(line.size() + 2);
  AppendWindows1252(bytes, line);
  bytes += "\r\n";
  platform.socket.Send(bytes);
}

void SocketProp::WaitSeconds(double seconds) {
  trekor::WaitSeconds(seconds, platform.clock, platform.pump);
}

void SocketProp::WaitForFirstConnection() {
  trekor::WaitSeconds(FirstConnectionLimit, platform.clock, platform.pump, [this] { return firstAttemptSettled; });
}

void SocketProp::cmdConnect_Click() {
  if (platform.socket.State() != SocketState::Closed)
    CloseRoutine();
  std::string host = Entered(form.RemoteHost);
  if (host.empty())
    host = DefaultHost.empty() ? "127.0.0.1" : DefaultHost;
  const std::string port = Entered(form.RemotePort);
  // Connect ends every state that the close routine leaves alone, "Peer Closing" above all.
  platform.socket.Connect(host, ToInteger32(Val(port.empty() ? "15959" : port)).value_or(0));
}

// "Peer Closing" stays: after a close by the peer only cmdConnect connects again, after an error the watchdog does.
// Control programs in the field rely on both.
void SocketProp::CloseRoutine() {
  if (platform.socket.State() != SocketState::Connected)
    return;
  platform.socket.Close();
  platform.pump.ProcessEvents();
}

void SocketProp::SocketClosed() {
  firstAttemptSettled = true;
  CloseRoutine();
}

void SocketProp::SocketFailed(int number) {
  firstAttemptSettled = true;
  form.txtError.SetText(std::to_string(number));
  platform.socket.Close();
}

void SocketProp::SocketConnected() {
  platform.socket.SetNoDelay();
  form.cmdConnect.SetEnabled(false);
  form.cmdDisConnect.SetEnabled(true);
  Greeting();
  firstAttemptSettled = true;
}

// IDENTITY Trekor 1 1.0.0 0 Default
// CAPABILITY Trekor DMI               (a simulator only)
// HWND Trekor  4711
// MESSAGE Trekor CTRL SET FACILITY SECTION FILE RTDMI GPS EVENT
void SocketProp::Greeting() {
  std::string line = "IDENTITY Trekor 1 " + state.folders.AppVersion + " 0 Default";
  SendData(line);
  if (state.run.Simulator) {
    line = "CAPABILITY Trekor DMI";
    SendData(line);
  }
  SendData(line); // the last line goes twice; control programs in the field count on it
  const std::string handle = std::to_string(platform.shell.WindowHandle(mainForm));
  SendData((handle.starts_with('-') ? "HWND Trekor " : "HWND Trekor  ") + handle);
  Setup_Messages();
}

void SocketProp::Setup_Messages() {
  SendData(state.run.Simulator ? "MESSAGE Trekor CTRL SET FACILITY SECTION FILE DMI GPS EVENT"
                               : "MESSAGE Trekor CTRL SET FACILITY SECTION FILE RTDMI GPS EVENT");
}

void SocketProp::cmdDisConnect_Click() {
  SendData("CTRL QUIT");
  CloseRoutine();
  form.RemoteHost.SetEnabled(true);
  form.cmdConnect.SetEnabled(true);
  form.cmdDisConnect.SetEnabled(false);
}

void SocketProp::WDT_Timer() {
  const SocketState found = platform.socket.State();
  if (found == SocketState::Closed)
    cmdConnect_Click();
  else if (found == SocketState::Open || found == SocketState::Error)
    platform.socket.Close();
  form.txtState.SetText(StateWord(found));
  if (OnWatchdog)
    OnWatchdog();
}

void SocketProp::SocketDataArrived() {
  std::string bytes = platform.socket.ReadAll();
  if (!Active)
    return;
  Compact();
  plain = (plain || ReceiveBuffer.empty()) && IsPlain(bytes);
  if (ReceiveBuffer.empty())
    ReceiveBuffer = std::move(bytes);
  else
    ReceiveBuffer += bytes;
  if (depth < DeepestArrival && holds == 0)
    DispatchLines();
}

void SocketProp::Release() {
  if (--holds == 0 && depth == 0)
    DispatchLines();
}

// Ends the views into the buffer: a dispatcher takes what it needs of a line before anything pumps. Only when the
// greater part is done with: to move the backlog at each arrival would make lines ever dearer behind a peer that sends
// faster than it is answered.
void SocketProp::Compact() {
  if (consumed < ReceiveBuffer.size() - consumed)
    return;
  ReceiveBuffer.erase(0, consumed);
  searched -= consumed;
  consumed = 0;
}

void SocketProp::DispatchLines() {
  ++depth;
  for (std::string_view line; Active && NextLine(line);)
    DispatchLine(line);
  --depth;
}

// Only CR LF ends a line; a lone one of the two is an ordinary character.
bool SocketProp::NextLine(std::string_view& line) {
  for (std::size_t at = 0; (at = ReceiveBuffer.find('\n', searched)) != std::string::npos;) {
    searched = at + 1;
    if (at == consumed || ReceiveBuffer[at - 1] != '\r')
      continue;
    line = std::string_view(ReceiveBuffer).substr(consumed, at - 1 - consumed);
    consumed = searched;
    if (!skipping && line.size() <= LongestLine)
      return true;
    skipping = false;
  }
  searched = ReceiveBuffer.size();
  if (searched - consumed > LongestLine) {
    skipping = true;
    consumed = searched - 1; // the last byte may be the CR of the end
  }
  return false;
}

void SocketProp::DispatchLine(std::string_view line) {
  if (!dispatch)
    return;
  line = TrimView(line);
  if (plain || IsPlain(line))
    dispatch(line);
  else
    dispatch(FromWindows1252(line));
}

SocketProp::WordViews SocketProp::SplitViews(std::string_view message) {
  WordViews list;
  const std::size_t room = list.Words.size() - 1;
  for (std::size_t at = 0; at < message.size();) {
    if (message[at] == ' ') {
      ++at;
      continue;
    }
    const bool quoted = message[at] == Quote;
    const std::size_t from = quoted ? at + 1 : at;
    const char last = quoted ? Quote : ' ';
    std::size_t end = from; // words are short: a loop beats the library's search
    while (end < message.size() && message[end] != last)
      ++end;
    const auto number = static_cast<std::size_t>(++list.WordCount);
    if (number > room) {
      if (std::getenv("TREKOR_TRACE"))
        std::clog << "Split_Message Error\n";
      break;
    }
    list.Words[number] = message.substr(from, end - from);
    at = end + (quoted ? 2 : 1); // the character behind a closing quote is skipped, whatever it is
  }
  return list;
}

SocketProp::WordList SocketProp::Split_Message(std::string_view message) {
  const WordViews views = SplitViews(message);
  WordList list;
  list.WordCount = views.WordCount;
  std::copy(views.Words.begin(), views.Words.end(), list.Words.begin());
  return list;
}

} // namespace trekor
