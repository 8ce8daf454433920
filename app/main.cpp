// Builds the program: the machine's adapters, the logic, its windows.
#include "platform_os/FileDrives.h"
#include "platform_os/InstanceLock.h"
#include "platform_os/ProgramFolder.h"
#include "platform_os/SdlSoundPlayer.h"
#include "platform_os/SystemKeyboard.h"
#include "platform_qt/DesktopScreen.h"
#include "platform_qt/EndRequests.h"
#include "platform_qt/QtClock.h"
#include "platform_qt/QtProcess.h"
#include "platform_qt/QtPump.h"
#include "platform_qt/QtSocket.h"
#include "platform_qt/SessionBus.h"
#include "program/Program.h"
#include "state/Version.h"
#include "views/QtShell.h"
#include "views/ReadAhead.h"
#include "views/Theme.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <optional>

namespace {

std::string Release() {
  using namespace trekor;
  return std::to_string(VersionMajor) + "." + std::to_string(VersionMinor) + "." + std::to_string(VersionRevision);
}

// A full disk, say, or folders that may not be written. The program goes on with the files of the release before.
void TellUnfilled(trekor::FileDrives& drives, trekor::Shell& shell) {
  const std::string words = "Not all files of this release could be copied to " +
                            drives.NativePath(drives.CurrentFolder()) + ". The next start tries again.";
  std::fprintf(stderr, "Trekor: %s\n", words.c_str());
  shell.MsgBox(words, "Trekor", trekor::BoxIcon::Stop);
}

// The toolkit's application stands already. Whatever is left of the program when it ends goes before that.
int RunProgram(trekor::FileDrives& drives, trekor::QtProcess& process, bool filled) {
  using namespace trekor;
  QtClock clock;
  QtPump pump;
  QtSocket socket;
  SdlSoundPlayer sound(drives);
  SystemKeyboard keyboard(QGuiApplication::platformName() == "xcb");
  QtShell shell(drives);
  std::optional<EndRequests> requests; // until the first picture there is nothing to lose
  shell.OnFirstPicture = [&] {
    requests.emplace([&shell] { shell.AskToClose(); });
    if (std::getenv("TREKOR_TRACE"))
      std::fputs("first picture\n", stderr);
    sound.PictureShown();
  };
  DesktopScreen screen;
  Platform platform{clock, pump, socket, sound, keyboard, drives, process, shell, screen};
  if (!filled)
    TellUnfilled(drives, shell);
  Program program(platform);
  if (program.Main() && !process.Ended())
    QApplication::exec();
  shell.UnloadAll();
  if (!sound.LetsGo()) // all files are closed by now
    std::_Exit(0);
  return 0;
}

int Run(int argc, char** argv) {
  using namespace trekor;
  FileDrives drives;
  const InstanceLock lock(PathFromText(drives.Root()));
  // Before the toolkit removes its own arguments.
  QtProcess process(argc, argv, lock.HeldByAnother(), drives.CurrentFolder());
  if (process.PreviousInstance()) { // nothing on the screen, which is the other one's
    std::fprintf(stderr, "Trekor already runs%s%s\n", drives.Root().empty() ? "" : " over ", drives.Root().c_str());
    return 0;
  }
  StartNoSessionBus();
  qputenv("QT_NO_GLIB", "1"); // the toolkit's own loop: the other takes twice as long from a line to its answer
  QApplication app(argc, argv);
  theme::Apply(app);
  const ReadAhead readAhead;
  const std::filesystem::path shipped =
      ShippedFolder(PathFromText(QCoreApplication::applicationFilePath().toStdString()));
  const bool filled = FillProgramFolder(drives, shipped, Release());
  return RunProgram(drives, process, filled);
}

} // namespace

int main(int argc, char** argv) {
  if (argc == 2 && std::strcmp(argv[1], "--version") == 0) {
    std::printf("Trekor %s\n", Release().c_str());
    return 0;
  }
  return Run(argc, argv);
}
