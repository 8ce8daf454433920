// trekor-control: the supervising program for people, tests and the demonstration.
#include "Drive.h"
#include "KeyPresser.h"
#include "LinkServer.h"
#include "Player.h"

#include "state/Version.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QProcess>
#include <cstdio>
#include <iostream>
#include <memory>
#include <thread>

namespace {

using namespace control;

int Complain(const QString& what) {
  std::fprintf(stderr, "trekor-control: %s\n", qUtf8Printable(what));
  return 1;
}

QString VersionText() {
  return QString("%1.%2.%3").arg(trekor::VersionMajor).arg(trekor::VersionMinor).arg(trekor::VersionRevision);
}

// Lines typed here go to the program as they stand.
void ReadTypedLines(LinkServer& link) {
  std::thread([&link] {
    for (std::string line; std::getline(std::cin, line);)
      QMetaObject::invokeMethod(&link, [&link, line] { link.Send(QString::fromStdString(line)); });
  }).detach(); // it hangs in the read when the program ends, and holds nothing
}

// The program that is started and watched; its end is the end of the control centre.
std::unique_ptr<QProcess> Launch(const QString& program, const QString& arguments, LinkServer& link) {
  auto child = std::make_unique<QProcess>();
  child->setProcessChannelMode(QProcess::ForwardedChannels);
  QObject::connect(child.get(), &QProcess::finished, [&link](int code, QProcess::ExitStatus status) {
    const bool fine = status == QProcess::NormalExit && code == 0;
    link.Tell("--", fine ? "the program has ended" : QString("the program has failed (%1)").arg(code));
    QCoreApplication::exit(fine ? 0 : 1);
  });
  QObject::connect(child.get(), &QProcess::errorOccurred, [&link, program](QProcess::ProcessError error) {
    if (error != QProcess::FailedToStart)
      return;
    link.Tell("--", "cannot start " + program);
    QCoreApplication::exit(1);
  });
  child->start(program, arguments.split(' ', Qt::SkipEmptyParts));
  return child;
}

std::unique_ptr<Player> Play(Drive drive, LinkServer& link, KeyPresser& keys, QProcess* child) {
  auto player = std::make_unique<Player>(std::move(drive), link, keys);
  QObject::connect(player.get(), &Player::Ended, [&link] { link.Send("CTRL EXIT"); });
  QObject::connect(player.get(), &Player::Failed, [&link, child](const QString& why) {
    link.Tell("--", "the drive has failed: " + why);
    if (child) {
      child->disconnect();
      child->kill();
      child->waitForFinished(5000);
    }
    QCoreApplication::exit(2);
  });
  return player;
}

bool ListenOn(const QString& port, LinkServer& link) {
  bool isNumber = false;
  const uint number = port.toUInt(&isNumber);
  if (!isNumber || number > 65535 || !link.Listen(static_cast<quint16>(number)))
    return false;
  link.Tell("--", QString("listening on 127.0.0.1:%1").arg(link.Port()));
  return true;
}

int Run(QCoreApplication& app, const QCommandLineParser& options) {
  Drive drive;
  QString reason;
  if (options.isSet("drive") && !ReadDrive(options.value("drive"), drive, &reason))
    return Complain(reason);
  LinkServer link;
  link.tellsPositions = !options.isSet("brief");
  if (!ListenOn(options.value("port"), link))
    return Complain("cannot listen on 127.0.0.1:" + options.value("port") + "; is another one running?");
  KeyPresser keys;
  std::unique_ptr<QProcess> child;
  if (options.isSet("launch"))
    child = Launch(options.value("launch"), options.value("args"), link);
  else
    QObject::connect(&link, &LinkServer::Closed, [] { QCoreApplication::exit(0); });
  std::unique_ptr<Player> player;
  if (options.isSet("drive"))
    player = Play(std::move(drive), link, keys, child.get());
  ReadTypedLines(link);
  return app.exec();
}

// Pictures of the screen need a windowing system; everything else runs without. The application keeps `argc`.
std::unique_ptr<QCoreApplication> MakeApplication(int& argc, char** argv) {
  const bool screen = !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
  std::unique_ptr<QCoreApplication> app;
  if (screen)
    app = std::make_unique<QGuiApplication>(argc, argv);
  else
    app = std::make_unique<QCoreApplication>(argc, argv);
  QCoreApplication::setApplicationName("trekor-control");
  QCoreApplication::setApplicationVersion(VersionText());
  return app;
}

void DescribeOptions(QCommandLineParser& options) {
  options.setApplicationDescription("Starts the data-collection program, feeds it a drive, shows the link both ways.\n"
                                    "Lines typed here go to the program.");
  options.addHelpOption();
  options.addVersionOption();
  options.addOptions({{"launch", "Start this program.", "program"},
                      {"args", "Its command line.", "line", "7707-104 /US"},
                      {"drive", "A script, or a GPX or NMEA track.", "file"},
                      {"brief", "Leave out the positions that are sent."},
                      {"port", "Listen on another port than 15959.", "number", "15959"}});
}

} // namespace

int main(int argc, char** argv) {
  const std::unique_ptr<QCoreApplication> app = MakeApplication(argc, argv);
  QCommandLineParser options;
  DescribeOptions(options);
  options.process(*app);
  if (!options.positionalArguments().isEmpty())
    return Complain("not understood: " + options.positionalArguments().first() + "; see --help");
  return Run(*app, options);
}
