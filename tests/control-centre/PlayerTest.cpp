#include "Player.h"

#include <QCoreApplication>
#include <QTcpSocket>
#include <QTemporaryDir>

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>

using namespace control;

namespace {

// A program at the other end of a real link: it introduces itself and writes down what it is told.
class PlayerTest : public testing::Test {
protected:
  PlayerTest() { EXPECT_TRUE(link.Listen(0)); }

  // Plays the script to its end; what the program was told, a line each.
  std::string Play(const std::string& script) {
    Drive drive;
    QString reason;
    EXPECT_TRUE(ReadScript(QString::fromStdString(script), folder.path(), drive, &reason)) << reason.toStdString();
    Player player(drive, link, keys);
    player.patienceSeconds = 0.3;
    QTcpSocket program;
    QByteArray told;
    QObject::connect(&program, &QTcpSocket::readyRead, [&] {
      told += program.readAll();
      if (!answer.isEmpty() && told.contains("ASK")) // later than asked, so that the drive is held
        program.write(std::exchange(answer, {}));
      if (told.endsWith("CTRL EXIT\r\n") || told.endsWith("FAILED\r\n"))
        loop.quit();
    });
    QObject::connect(&player, &Player::Ended, &link, [&] { link.Send("CTRL EXIT"); });
    QObject::connect(&player, &Player::Failed, &link, [&] { link.Send("FAILED"); });
    program.connectToHost("127.0.0.1", link.Port());
    program.write("IDENTITY Trekor 1 4.8.0 0 Default\r\nSET SYSTEM TREKOR UNKNOWN 7707-104\r\n");
    loop.exec();
    program.abort();
    while (link.Connected()) // or the next one would be turned away
      loop.processEvents(QEventLoop::WaitForMoreEvents);
    return told.replace("\r\n", "\n").toStdString();
  }

  int words = 0;
  QCoreApplication app{words, nullptr};
  QEventLoop loop;
  QTemporaryDir folder;
  LinkServer link;
  KeyPresser keys;
  QByteArray answer;
};

TEST_F(PlayerTest, SaysWhereTheVehicleStandsAndSendsEachPositionFromItsOwnMoment) {
  EXPECT_EQ(Play("start 10\ndirection down\nspeed 36\ndmi 20\npace 5\n"
                 "at 0.12 send HALF WAY\nat 0.2 speed 72\nat 0.35 end\n"),
            "SET DMI 0 D 10.0000\nDMI 10.0000\nDMI 9.9995\nDMI 9.9990\nHALF WAY\nDMI 9.9985\nDMI 9.9980\n"
            "DMI 9.9970\nDMI 9.9960\nCTRL EXIT\n");
}

TEST_F(PlayerTest, KeepsItsRateHoweverFewTicksThereAre) {
  const std::string told = Play("speed 36\ndmi 300\npace 3\nat 1 end\n");
  EXPECT_EQ(std::count(told.begin(), told.end(), '\n'), 1 + 300 + 1);
  EXPECT_NE(told.find("DMI 0.0000\nDMI 0.0001\nDMI 0.0001\nDMI 0.0001\nDMI 0.0002\n"), std::string::npos);
}

TEST_F(PlayerTest, StandsWhileItWaitsAndGoesOnFromThere) {
  // The operator has turned the vehicle meanwhile, and a system that is up already is none that starts.
  answer = "SET DMI  0 -1  7.5\r\nSET SYSTEM TREKOR\r\nANSWER\r\n";
  EXPECT_EQ(Play("start 1\nspeed 36\nat 0.1 send ASK\nat 0.1 wait ANSWER\nat 0.2 end\n"),
            "SET DMI 0 I 1.0000\nDMI 1.0000\nASK\nDMI 7.5000\nCTRL EXIT\n");
}

TEST_F(PlayerTest, DoesNotWaitForEver) {
  for (const std::string vain : {"wait NOBODY", "window Nobody", "key Nokey", "screenshot /no/such/place.png"})
    EXPECT_EQ(Play("at 0 " + vain + "\nat 1 end\n"), "SET DMI 0 I 0.0000\nFAILED\n") << vain;
  answer = "ANSWER\r\n"; // which only one wait can use
  EXPECT_EQ(Play("at 0 send ASK\nat 0 wait ANSWER\nat 0.1 wait ANSWER\nat 1 end\n"),
            "SET DMI 0 I 0.0000\nASK\nFAILED\n");
}

TEST_F(PlayerTest, ReplaysATrackWithoutTimesAtSixtyKilometresAnHour) {
  std::ofstream(folder.filePath("road.gpx").toStdString())
      << "<gpx><trk><trkseg><trkpt lat='45' lon='13'><ele>7</ele></trkpt>"
         "<trkpt lat='45.00089932' lon='13'><ele>9</ele></trkpt></trkseg></trk></gpx>";
  EXPECT_EQ(Play("track road.gpx\npace 20\ndmi 0.5\ngps 0.25\nat 9 end\n"),
            "SET DMI 0 I 0.0000\nDMI 0.0000\nGPS 0 45.0000000 13.0000000 7.0 1 9 0 0 0 0\nDMI 0.0333\n"
            "DMI 0.0667\nGPS 4 45.0005995 13.0000000 8.3 1 9 0 0 0 0\n"
            "DMI 0.1000\nDMI 0.1000\nGPS 6 45.0008993 13.0000000 9.0 1 9 0 0 0 0\nCTRL EXIT\n");
  EXPECT_EQ(Play("track road.gpx\npace 20\ndmi 0.5\ngps 0\nat 3 speed 0\nat 9 end\n"),
            "SET DMI 0 I 0.0000\nDMI 0.0000\nDMI 0.0333\nCTRL EXIT\n");
  EXPECT_EQ(Play("track road.gpx\nspeed 36\npace 20\ndmi 0\ngps 0.5\nat 3 end\n"),
            "SET DMI 0 I 0.0000\nGPS 0 45.0000000 13.0000000 7.0 1 9 0 0 0 0\n"
            "GPS 1 45.0001799 13.0000000 7.4 1 9 0 0 0 0\nCTRL EXIT\n");
}

TEST_F(PlayerTest, HearsNothingOfAProgramThatEndedInTheMiddleOfALine) {
  QStringList heard;
  QObject::connect(&link, &LinkServer::Line, &loop, [&](const QString& line) { heard << line, loop.quit(); });
  QObject::connect(&link, &LinkServer::Closed, &loop, &QEventLoop::quit);
  QTcpSocket ended, program;
  ended.connectToHost("127.0.0.1", link.Port());
  ended.write("SET SYS");
  ended.disconnectFromHost(); // when that is written
  loop.exec();
  program.connectToHost("127.0.0.1", link.Port());
  program.write("HWND Trekor  7\r\n");
  loop.exec();
  EXPECT_EQ(heard, QStringList{"HWND Trekor  7"});
}

} // namespace
