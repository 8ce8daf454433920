#include "platform_qt/QtProcess.h"

#include <QCoreApplication>
#include <QLocale>
#include <QSysInfo>
#include <QUuid>

#include <algorithm>

namespace trekor {

namespace {

std::string Joined(int argc, char** argv) {
  std::string line;
  for (int i = 1; i < argc; ++i)
    line += (i > 1 ? " " : "") + std::string(argv[i]);
  return line;
}

} // namespace

QtProcess::QtProcess(int argc, char** argv, bool previousInstance, std::string programFolder)
    : commandLine(Joined(argc, argv)), programFolder(std::move(programFolder)), previousInstance(previousInstance) {}

std::string QtProcess::ComputerName() {
  return QSysInfo::machineHostName().toStdString();
}

char QtProcess::DecimalChar() {
  const QString mark = QLocale::system().decimalPoint();
  return mark == "," ? ',' : '.';
}

bool QtProcess::NewGuidBytes(unsigned char (&bytes)[16]) {
  const QByteArray guid = QUuid::createUuid().toRfc4122();
  std::copy(guid.begin(), guid.end(), bytes);
  return guid.size() == 16;
}

// Ends every event loop of the program, the modal ones included.
void QtProcess::End() {
  ended = true;
  QCoreApplication::exit(0);
}

} // namespace trekor
