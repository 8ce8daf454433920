#include "Drive.h"
#include "LinkServer.h"

#include <QTemporaryDir>

#include <fstream>
#include <gtest/gtest.h>

using namespace control;

namespace {

TEST(DriveTest, ReadsASettingsAndEventsInOrderOfTime) {
  Drive drive;
  QString reason;
  ASSERT_TRUE(ReadScript("# a drive\nstart 10.05\ndirection down\nspeed 80\ndmi 20\ngps 0\npace 2.5\n"
                         "at 12.4 send CTRL SUSPEND\nat 12.350 key F5\nat 12.4 wait ACK  Trekor\nat 30 end\n",
                         ".", drive, &reason))
      << reason.toStdString();
  EXPECT_EQ(std::vector({drive.startKm, drive.speed, drive.pace}), std::vector({10.05, 80.0, 2.5}));
  EXPECT_FALSE(drive.increasing);
  const QString actions[] = {"send ", "key ", "speed ", "wait ", "window ", "picture ", "end "};
  QString events;
  for (const Event& e : drive.events)
    events += actions[static_cast<int>(e.action)] + e.text + "|";
  EXPECT_EQ(events, "key F5|send CTRL SUSPEND|wait ACK  Trekor|end |");
}

TEST(DriveTest, TellsTheLineOfAMistake) {
  for (const char* line : {"at x key A", "at 1 jump", "at 1 key", "speed fast", "direction left", "colour red",
                           "dmi -1", "dmi 1e9", "pace 0", "pace fast", "track /no/such/file.gpx"}) {
    Drive drive;
    QString reason;
    EXPECT_FALSE(ReadScript(QString("start 1\n") + line, ".", drive, &reason)) << line;
    EXPECT_TRUE(reason.startsWith("line 2: ")) << reason.toStdString();
  }
}

TEST(DriveTest, ABareTrackIsReplayedAndAMarkOfItsOrderIsPassedOver) {
  const QTemporaryDir folder;
  std::ofstream(folder.filePath("road.gpx").toStdString())
      << "\n<gpx><trkpt lat='45' lon='13'/><trkpt lat='46' lon='13'/></gpx>";
  std::ofstream(folder.filePath("road.drive").toStdString()) << "\xEF\xBB\xBFtrack road.gpx\n";
  for (const char* name : {"road.gpx", "road.drive"}) {
    Drive drive;
    QString reason;
    EXPECT_TRUE(ReadDrive(folder.filePath(name), drive, &reason) && drive.replaysTrack) << reason.toStdString();
  }
}

TEST(DriveTest, TheWireSpeaksTheOfficesCodePage) {
  EXPECT_EQ(ToWire(QString::fromUtf8("Søvej €")), QByteArray("S\xf8vej \x80"));
  EXPECT_EQ(FromWire("S\xf8vej"), QString::fromUtf8("Søvej"));
}

} // namespace
