// Fakes of all seams to the machine. They record what happened and let a test decide what comes next. Time moves only
// in the pump, by a millisecond a call, so that a wait of a second ends after a thousand pumps and no test sleeps.
#pragma once

#include "forms/Form.h"
#include "platform/Platform.h"
#include "platform_os/FileDrives.h"
#include "support/Files.h"

#include <deque>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace trekor::tests {

class FakeClock : public Clock {
public:
  double Milliseconds() override { return now; }
  LocalTime Now() override;
  void Advance(double milliseconds) { now += milliseconds; }
  // The wall clock at millisecond 0; it follows the milliseconds.
  LocalTime start{2024, 5, 6, 7, 8, 9};

private:
  double now = 0;
};

class FakePump : public Pump {
public:
  explicit FakePump(FakeClock& c) : clock(c) {}
  void ProcessEvents() override;
  void WaitForEvents(double) override {
    ++sleeps;
    ProcessEvents();
  }
  // Runs at the next pump.
  void Post(std::function<void()> event) { events.push_back(std::move(event)); }
  // Runs at the n-th pump from now (1 is the next), so that an event can arrive in the middle of an operation.
  void AtPump(int n, std::function<void()> event) { later.emplace(count + n, std::move(event)); }
  int count = 0;
  int sleeps = 0; // those of the pumps that let the processor sleep
  double millisecondsPerPump = 1;

private:
  FakeClock& clock;
  std::deque<std::function<void()>> events;
  std::multimap<int, std::function<void()>> later;
};

class FakeSocket : public Socket {
public:
  explicit FakeSocket(FakePump& p) : pump(p) {}
  void SetEvents(SocketEvents* e) override { events = e; }
  SocketState State() const override { return state; }
  void Connect(const std::string& host, int port) override;
  void Close() override;
  void SetNoDelay() override { noDelay = true; }
  bool Send(std::string_view bytes) override;
  std::string ReadAll() override;

  // The peer's side.
  bool accepts = true; // a connection attempt succeeds at the next pump; otherwise it fails with error 10061
  void Deliver(std::string bytes); // at the next pump
  void DeliverNow(std::string bytes);
  void Line(const std::string& line) { Deliver(line + "\r\n"); }
  void PeerClose();
  void Fail(int number);

  std::string sent; // everything, in order
  // The lines sent since the last call.
  std::vector<std::string> TakeLines();
  int connects = 0;
  std::string host;
  int port = 0;
  bool noDelay = false;
  SocketState state = SocketState::Closed;

private:
  FakePump& pump;
  SocketEvents* events = nullptr;
  std::string incoming;
  std::size_t taken = 0;
};

class FakeKeyboard : public Keyboard {
public:
  bool NumLock() override { return numLock; }
  void PressNumLock() override {
    numLock = !numLock;
    ++presses;
  }
  void KeyDown(int code) override { Note('+', code); }
  void KeyUp(int code) override { Note('-', code); }
  // The keys of an American keyboard: letters, digits and the blank; others as given in `scans`.
  int ScanKey(char32_t character) override;
  // "+18 -18": Alt down and up; since the last call.
  std::string TakeKeys() { return std::exchange(keys, {}); }
  bool numLock = false;
  int presses = 0;
  std::map<char32_t, int> scans;
  std::multiset<int> held; // keys that are down now

private:
  void Note(char way, int code);
  std::string keys;
};

// The real drives in a temporary folder that is removed with the object. Nothing is synced unless asked for, but the
// calls are recorded.
class FakeDrives : private TestFolder, public FileDrives {
public:
  FakeDrives() : FileDrives(TestFolder::path) { MakeFolders("C:\\Trekor"); }
  std::string RemoteName(char letter) override { return remoteNames.contains(letter) ? remoteNames[letter] : ""; }
  bool MakeFolder(const std::string& path) override {
    return Act(path, [&] { return FileDrives::MakeFolder(path); });
  }
  bool CopyFile(const std::string& from, const std::string& to) override {
    return Act(to, [&] { return from != uncopied && FileDrives::CopyFile(from, to); });
  }
  bool ReplaceFile(const std::string& work, const std::string& path) override {
    return Act(path, [&] { return FileDrives::ReplaceFile(work, path); });
  }
  bool SyncFile(const std::string& path) override {
    synced.push_back(path);
    return Act(path, [&] { return FileDrives::SyncFile(path); });
  }
  bool DeleteFile(const std::string& path) override {
    return Act(path, [&] { return FileDrives::DeleteFile(path); });
  }
  std::string CurrentFolder() override { return currentFolder; }

  // A test's own acts.
  void MakeFolders(const std::string& path) { std::filesystem::create_directories(NativePath(path)); } // the drive too
  void Write(const std::string& path, const std::string& bytes) { WriteBytes(NativePath(path), bytes); }
  std::string Read(const std::string& path) { return BytesOf(NativePath(path)); }

  std::map<char, std::string> remoteNames;
  std::string currentFolder = "C:\\Trekor";
  // Paths whose copy, replacement, deletion, making or syncing fails.
  std::vector<std::string> failing;
  std::string uncopied;            // no copy is made from here
  std::vector<std::string> synced; // paths, in order
  bool syncs = false;              // in truth, too

protected:
  bool OnDisk(const std::filesystem::path& path) override { return !syncs || FileDrives::OnDisk(path); }

private:
  bool Act(const std::string& path, const std::function<bool()>& doing);
};

class FakeSoundPlayer : public SoundPlayer {
public:
  explicit FakeSoundPlayer(FakeDrives& drives) : drives(drives) {}
  void Open_SoundDevice() override { open = true; }
  void Close_SoundDevice() override { open = false; }
  int Devices() override { return devices; }
  void Play(const std::vector<std::string>& paths) override;
  std::vector<std::string> TakePlayed();
  std::vector<std::string> played;
  bool open = false;
  int devices = 1;

private:
  FakeDrives& drives;
};

class FakeProcess : public Process {
public:
  bool PreviousInstance() override { return previousInstance; }
  std::string CommandLine() override { return commandLine; }
  std::string ProgramName() override { return "Trekor"; }
  std::string ProgramFolder() override { return "C:\\Trekor"; }
  std::string ComputerName() override { return "VEHICLE-1"; }
  float WindowsVersion() override { return 2010; }
  char DecimalChar() override { return decimalChar; }
  bool NewGuidBytes(unsigned char (&bytes)[16]) override;
  void End() override { ++ended; }
  bool previousInstance = false, guidFails = false;
  std::string commandLine = "7707-104 /US";
  char decimalChar = '.';
  int ended = 0;
};

// Shows nothing. A modal form is answered by the script of its name, which acts on the model and hides it. The focus
// moves as in a real window: a form that is shown gives it to the first control that can have it.
class FakeShell : public Shell {
public:
  void Load(Form& form) override { Note("Load " + form.Name()); }
  void Unload(Form& form) override { Note("Unload " + form.Name()); }
  void Show(Form& form) override;
  void Hide(Form& form) override;
  void ShowModal(Form& form) override;
  void SetFocus(Control& control) override;
  void BringToFront(Control& control) override { Note("Front " + control.FullName()); }
  long long WindowHandle(Form&) override { return 4711; }
  void Hourglass(bool on) override { hourglass = on; }
  void ShowNight(bool on) override { night = on; }
  void MsgBox(const std::string& text, const std::string& title, BoxIcon icon) override;
  void CloseBoxes() override { ++boxesClosed; }
  int boxesClosed = 0;
  void ShowNotice(const std::string& text) override { notices.push_back(text); }
  PictureFile SavePicture(const std::string& key, const std::string& nativePath) override;
  std::size_t pictureBytes = 0; // of each saved picture, behind its name

  // By form name. A form without a script is hidden at once, as if the user had closed it untouched.
  std::map<std::string, std::function<void(Form&)>> scripts;
  std::vector<std::string> acts;  // "Show Measurements", "Modal NumericPrompt", ...
  std::vector<std::string> boxes; // texts of message boxes
  std::vector<std::string> notices;
  bool hourglass = false, night = false;

private:
  static void FirstFocus(Form& form);
  void Note(std::string act) { acts.push_back(std::move(act)); }
};

class FakeScreen : public Screen {
public:
  void KeepOn(bool wanted) override { on = wanted; }
  bool on = false;
};

// All fakes together, and the Platform over them.
struct FakePlatform {
  FakeClock clock;
  FakePump pump{clock};
  FakeSocket socket{pump};
  FakeKeyboard keyboard;
  FakeDrives drives;
  FakeSoundPlayer sound{drives};
  FakeProcess process;
  FakeShell shell;
  FakeScreen screen;
  Platform platform{clock, pump, socket, sound, keyboard, drives, process, shell, screen};
};

} // namespace trekor::tests
