#include "Track.h"

#include <gtest/gtest.h>

using control::Track;

namespace {

constexpr const char* Gpx = R"(<?xml version="1.0"?><gpx><trk><trkseg>
<trkpt lat="45.0" lon="13.0"><ele>200</ele><time>2024-05-06T06:59:50Z</time></trkpt>
<trkpt lat="91.0" lon="13.0"><time>2024-05-06T06:59:55Z</time></trkpt>
<trkpt lat="45.0089932" lon="13.0"><ele>210</ele><time>2024-05-06T07:00:30Z</time></trkpt>
</trkseg><trkseg>
<trkpt lat="45.0179864" lon="13.0"><extensions><x/></extensions><time>2024-05-06T07:00:10Z</time></trkpt>
</trkseg></trk></gpx>)";

TEST(TrackTest, ReadsGpxAcrossSegmentsAndPassesOverImpossiblePositions) {
  Track track;
  QString reason;
  ASSERT_TRUE(track.ReadText(Gpx, &reason)) << reason.toStdString();
  ASSERT_EQ(track.Points().size(), 3u);
  EXPECT_NEAR(track.Points()[1].km, 1.0, 0.001);
  EXPECT_NEAR(track.LengthKm(), 2.0, 0.001);
  EXPECT_EQ(track.Points()[0].clock, 65950);
  EXPECT_EQ(track.Points()[1].seconds, 40);
  EXPECT_EQ(track.Points()[2].seconds, 40); // the clock has jumped back
}

TEST(TrackTest, InterpolatesByWayAndByTimeAndStaysAtTheEnds) {
  Track track;
  QString reason;
  ASSERT_TRUE(track.ReadText(Gpx, &reason));
  EXPECT_NEAR(track.AtKm(0.5).latitude, 45.0044966, 1e-6);
  EXPECT_NEAR(track.AtKm(0.5).height, 205, 0.01);
  EXPECT_NEAR(track.AtSeconds(10).km, 0.25, 0.001);
  EXPECT_EQ(track.AtKm(-1).latitude, 45.0);
  EXPECT_NEAR(track.AtKm(99).latitude, 45.0179864, 1e-9);
}

TEST(TrackTest, ReadsNmeaOncePerFixAndRefusesBrokenSentences) {
  const char* text = "$GPGGA,235958,4807.038,N,01131.000,E,1,08,0.9,545.4,M,46.9,M,,\r\n"
                     "$GPRMC,235958,A,4807.038,N,01131.000,E,022.4,084.4,230394,003.1,W\r\n"
                     "$GPGGA,235959,4807.100,N,01131.000,E,0,00,,,M,,M,,\r\n"            // no fix
                     "$GPGGA,235959,4807.100,N,01131.000,E,1,08,0.9,545.4,M,,M,,*00\r\n" // wrong checksum
                     "noise\n"
                     "$GNRMC,000002,A,4807.038,S,01131.000,W,,,240394,,\n";
  Track track;
  QString reason;
  ASSERT_TRUE(track.ReadText(text, &reason));
  ASSERT_EQ(track.Points().size(), 2u);
  EXPECT_NEAR(track.Points()[0].latitude, 48.1173, 1e-4);
  EXPECT_NEAR(track.Points()[1].longitude, -11.516667, 1e-6);
  EXPECT_EQ(track.Points()[1].seconds, 4); // past midnight
  EXPECT_EQ(track.Points()[1].height, 545.4);
}

TEST(TrackTest, SaysWhyAFileIsNoTrack) {
  for (const char* text : {"<gpx><trk></gpx>", "<gpx/>", "", "just words", "$GPGGA,1,2\n"}) {
    Track track;
    QString reason;
    EXPECT_FALSE(track.ReadText(text, &reason)) << text;
    EXPECT_FALSE(reason.isEmpty()) << text;
  }
}

} // namespace
