#include "Drive.h"
#include "LinkServer.h"

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
  EXPECT_EQ(drive.startKm, 10.05);
  EXPECT_FALSE(drive.increasing);
  EXPECT_EQ(drive.speed, 80);
  EXPECT_EQ(drive.pace, 2.5);
  ASSERT_EQ(drive.events.size(), 4u);
  EXPECT_EQ(drive.events[0].text, "F5");
  EXPECT_EQ(drive.events[1].text, "CTRL SUSPEND");
  EXPECT_EQ(drive.events[2].action, Event::Action::Wait);
  EXPECT_EQ(drive.events[2].text, "ACK  Trekor");
  EXPECT_EQ(drive.events[3].action, Event::Action::End);
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

TEST(DriveTest, TheWireSpeaksTheOfficesCodePage) {
  EXPECT_EQ(ToWire(QString::fromUtf8("Søvej €")), QByteArray("S\xf8vej \x80"));
  EXPECT_EQ(FromWire("S\xf8vej"), QString::fromUtf8("Søvej"));
}

} // namespace
