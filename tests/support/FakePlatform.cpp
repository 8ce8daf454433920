#include "support/FakePlatform.h"

#include "values/Text.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <gtest/gtest.h>
#include <utility>

namespace trekor::tests {

LocalTime FakeClock::Now() {
  std::tm t{};
  t.tm_year = start.year - 1900;
  t.tm_mon = start.month - 1;
  t.tm_mday = start.day;
  t.tm_hour = start.hour;
  t.tm_min = start.minute;
  t.tm_sec = start.second + static_cast<int>(now / 1000);
  const std::time_t moment = timegm(&t);
  gmtime_r(&moment, &t);
  return {t.tm_year + 1900, t.tm_mon + 1, t.tm_mday, t.tm_hour, t.tm_min, t.tm_sec};
}

int FakeKeyboard::ScanKey(char32_t c) {
  if (const auto found = scans.find(c); found != scans.end())
    return found->second;
  const bool digit = c >= '0' && c <= '9', capital = c >= 'A' && c <= 'Z', small = c >= 'a' && c <= 'z';
  return digit || capital || c == ' ' ? static_cast<int>(c) : small ? static_cast<int>(c - 32) : 0;
}

void FakeKeyboard::Note(char way, int code) {
  keys += (keys.empty() ? "" : " ") + (way + std::to_string(code));
  if (way == '+')
    held.insert(code);
  else if (const auto down = held.find(code); down != held.end())
    held.erase(down);
}

void FakePump::ProcessEvents() {
  ++count;
  clock.Advance(millisecondsPerPump);
  const auto due = later.upper_bound(count);
  for (auto it = later.begin(); it != due; ++it)
    events.push_back(it->second);
  later.erase(later.begin(), due);
  while (!events.empty()) {
    const auto event = std::move(events.front());
    events.pop_front(); // first, as the event may pump again
    event();
  }
}

void FakeSocket::Connect(const std::string& h, int p) {
  ++connects;
  host = h;
  port = p;
  state = SocketState::Connecting;
  pump.Post([this] {
    if (state != SocketState::Connecting)
      return;
    if (!accepts)
      return Fail(10061);
    state = SocketState::Connected;
    if (events)
      events->SocketConnected();
  });
}

void FakeSocket::Close() {
  state = SocketState::Closed;
}

bool FakeSocket::Send(std::string_view bytes) {
  if (state != SocketState::Connected)
    return false;
  sent.append(bytes);
  return true;
}

std::string FakeSocket::ReadAll() {
  return std::exchange(incoming, {});
}

void FakeSocket::Deliver(std::string bytes) {
  pump.Post([this, b = std::move(bytes)] { DeliverNow(b); });
}

void FakeSocket::DeliverNow(std::string bytes) {
  if (state != SocketState::Connected)
    return; // nobody hears it
  incoming += bytes;
  if (events)
    events->SocketDataArrived();
}

void FakeSocket::PeerClose() {
  state = SocketState::PeerClosing;
  if (events)
    events->SocketClosed();
}

void FakeSocket::Fail(int number) {
  state = SocketState::Error;
  if (events)
    events->SocketFailed(number);
}

std::vector<std::string> FakeSocket::TakeLines() {
  std::vector<std::string> lines;
  for (auto end = sent.find("\r\n", taken); end != std::string::npos; end = sent.find("\r\n", taken)) {
    lines.push_back(sent.substr(taken, end - taken));
    taken = end + 2;
  }
  return lines;
}

void FakeSoundPlayer::Play(const std::vector<std::string>& paths) {
  const auto path = std::find_if(paths.begin(), paths.end(), [&](const auto& p) { return drives.FileExists(p); });
  if (path != paths.end())
    played.push_back(*path);
}

std::vector<std::string> FakeSoundPlayer::TakePlayed() {
  return std::exchange(played, {});
}

bool FakeDrives::Act(const std::string& path, const std::function<bool()>& doing) {
  const auto fails = [&](const std::string& one) { return SameText(one, path); };
  return std::none_of(failing.begin(), failing.end(), fails) && doing();
}

bool FakeProcess::NewGuidBytes(unsigned char (&bytes)[16]) {
  for (int i = 0; i < 16; ++i)
    bytes[i] = static_cast<unsigned char>(i * 17);
  return !guidFails;
}

void FakeShell::FirstFocus(Form& form) {
  static const std::set<Kind> none{Kind::Label,     Kind::Frame, Kind::Image,     Kind::TabStrip, Kind::ToolBar,
                                   Kind::StatusBar, Kind::Menu,  Kind::ImageList, Kind::Timer};
  for (Control* c : form.Controls())
    if (!form.ActiveControl && c->Visible() && c->Enabled() && !none.contains(c->TypeOf()))
      form.FocusMoved(c);
}

void FakeShell::Show(Form& form) {
  form.Shown = true;
  FirstFocus(form);
  Note("Show " + form.Name());
}

void FakeShell::Hide(Form& form) {
  form.Shown = false;
  form.ActiveControl = nullptr;
  Note("Hide " + form.Name());
}

void FakeShell::ShowModal(Form& form) {
  form.Shown = true;
  FirstFocus(form);
  Note("Modal " + form.Name());
  if (const auto it = scripts.find(form.Name()); it != scripts.end())
    it->second(form);
  form.Shown = false;
  form.ActiveControl = nullptr;
}

void FakeShell::SetFocus(Control& control) {
  control.Owner().FocusMoved(&control);
  Note("Focus " + control.FullName());
}

// A notice lies above every window, so a box under it can't be read.
void FakeShell::MsgBox(const std::string& text, const std::string& title, BoxIcon) {
  EXPECT_TRUE(notices.empty() || notices.back().empty()) << text;
  boxes.push_back(text);
  Note("Box " + title);
}

PictureFile FakeShell::SavePicture(const std::string& key, const std::string& nativePath) {
  std::ofstream file(nativePath, std::ios::binary);
  file << "PICTURE " << key << std::string(pictureBytes, '.');
  return file.flush().good() ? PictureFile::Written : PictureFile::Failed;
}

} // namespace trekor::tests
