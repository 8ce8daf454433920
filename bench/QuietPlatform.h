// Seams without screen, sound, keys and link, for a measurement that only stores.
#pragma once

#include "platform/Platform.h"

namespace trekor {

class QuietClock : public Clock {
public:
  double Milliseconds() override { return 0; }
  LocalTime Now() override { return {}; }
};

class QuietPump : public Pump {
public:
  void ProcessEvents() override {}
  void WaitForEvents(double) override {}
};

class QuietSocket : public Socket {
public:
  void SetEvents(SocketEvents*) override {}
  SocketState State() const override { return SocketState::Closed; }
  void Connect(const std::string&, int) override {}
  void Close() override {}
  void SetNoDelay() override {}
  bool Send(std::string_view) override { return false; }
  std::string ReadAll() override { return {}; }
};

class QuietSound : public SoundPlayer {
public:
  void Open_SoundDevice() override {}
  void Close_SoundDevice() override {}
  int Devices() override { return 0; }
  void Play(const std::vector<std::string>&) override {}
};

class QuietKeyboard : public Keyboard {
public:
  bool NumLock() override { return false; }
  void PressNumLock() override {}
  void KeyDown(int) override {}
  void KeyUp(int) override {}
  int ScanKey(char32_t) override { return 0; }
};

class QuietProcess : public Process {
public:
  bool PreviousInstance() override { return false; }
  std::string CommandLine() override { return {}; }
  std::string ProgramName() override { return "Trekor"; }
  std::string ProgramFolder() override { return {}; }
  std::string ComputerName() override { return {}; }
  float WindowsVersion() override { return 0; }
  char DecimalChar() override { return '.'; }
  bool NewGuidBytes(unsigned char (&)[16]) override { return false; }
  void End() override {}
};

class QuietShell : public Shell {
public:
  void Load(Form&) override {}
  void Unload(Form&) override {}
  void Show(Form&) override {}
  void Hide(Form&) override {}
  void ShowModal(Form&) override {}
  void SetFocus(Control&) override {}
  void BringToFront(Control&) override {}
  long long WindowHandle(Form&) override { return 0; }
  void Hourglass(bool) override {}
  void MsgBox(const std::string&, const std::string&, BoxIcon) override {}
  void CloseBoxes() override {}
  void ShowNotice(const std::string&) override {}
  void ShowNight(bool) override {}
  PictureFile SavePicture(const std::string&, const std::string&) override { return PictureFile::NoPicture; }
};

// One native file, whatever the name.
class OneFile : public Drives {
public:
  std::string dataFile;

  std::string NativePath(const std::string&) override { return dataFile; }
  bool DriveExists(char) override { return false; }
  std::string RemoteName(char) override { return {}; }
  std::string ControlCentreShare() override { return {}; }
  bool FileExists(const std::string&) override { return false; }
  bool FileMissing(const std::string&) override { return false; }
  bool FolderExists(const std::string&) override { return false; }
  bool MakeFolder(const std::string&) override { return false; }
  bool CopyFile(const std::string&, const std::string&) override { return false; }
  bool ReplaceFile(const std::string&, const std::string&) override { return false; }
  bool SyncFile(const std::string&) override { return false; }
  bool DeleteFile(const std::string&) override { return false; }
  void ClearReadOnly(const std::string&) override {}
  std::vector<std::string> Files(const std::string&, const std::string&) override { return {}; }
  std::vector<std::string> Folders(const std::string&) override { return {}; }
  std::string CurrentFolder() override { return {}; }
};

class QuietScreen : public Screen {
public:
  void KeepOn(bool) override {}
};

struct QuietPlatform {
  QuietClock clock;
  QuietPump pump;
  QuietSocket socket;
  QuietSound sound;
  QuietKeyboard keyboard;
  OneFile drives;
  QuietProcess process;
  QuietShell shell;
  QuietScreen screen;
  Platform platform{clock, pump, socket, sound, keyboard, drives, process, shell, screen};
};

} // namespace trekor
