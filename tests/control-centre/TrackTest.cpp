#include "Track.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

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
  EXPECT_EQ(track.Points()[0].timeOfDay, 6 * 3600 + 59 * 60 + 50);
  EXPECT_EQ(track.Points()[1].seconds, 40);
  EXPECT_NEAR(track.Points()[2].seconds, 100, 0.1) << "the clock has jumped back: this kilometre takes a minute";
  EXPECT_EQ(track.Points()[2].timeOfDay, 7 * 3600 + 10) << "what the receiver said is kept";
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

// Points each 100 m to the north, in two tracks; "-" has no time, the others stand at a second of one hour.
QByteArray Road(const std::vector<std::string>& first, const std::vector<std::string>& second = {}) {
  QByteArray text = "\xEF\xBB\xBF<gpx><trk><name>empty</name></trk>"; // a byte order mark, and a track of nothing
  int point = 0;
  for (const auto& part : {first, second}) {
    text += "<trk><trkseg>";
    for (const std::string& time : part) {
      text += QString("<trkpt lat='%1' lon='13'>").arg(45 + point++ * 0.00089932, 0, 'f', 8).toUtf8();
      if (time != "-")
        text +=
            QString("<time>2024-05-06T07:00:%1</time>").arg(time.c_str()).toUtf8(); // no zone: it is UTC all the same
      text += "</trkpt>";
    }
    text += "</trkseg></trk>";
  }
  return text + "</gpx>";
}

// A hundred metres without times take 6 s (60 km/h) where no time stands on both sides.
TEST(TrackTest, NeverJumpsWhateverTheTimesSay) {
  struct Case {
    const char* what;
    std::vector<std::string> first, second;
    std::vector<double> seconds;
    bool spoken;
  };
  for (const Case& c : std::vector<Case>{
           {"all are there", {"00", "10"}, {"30"}, {0, 10, 30}, false},
           {"none at all", {"-", "-"}, {"-"}, {0, 6, 12}, true},
           {"one in the middle", {"00", "-", "-", "30"}, {}, {0, 10, 20, 30}, true},
           {"none in the first track", {"-", "-"}, {"10", "15"}, {0, 6, 12, 17}, true},
           {"none at the end", {"10", "15"}, {"-", "-"}, {0, 5, 11, 17}, true},
           {"one that stands", {"10", "10", "20"}, {}, {0, 5, 10}, true},
           {"one that goes back", {"10", "20", "12", "40"}, {}, {0, 10, 20, 30}, true},
           {"tracks in the wrong order", {"40", "45"}, {"10", "15", "20"}, {0, 5, 11, 16, 21}, true},
           {"a dead clock", {"10", "12", "12", "12"}, {}, {0, 2, 8, 14}, true},
           {"one time alone", {"-", "10", "-"}, {}, {0, 6, 12}, true},
       }) {
    Track track;
    QString reason;
    ASSERT_TRUE(track.ReadText(Road(c.first, c.second), &reason)) << c.what << reason.toStdString();
    ASSERT_EQ(track.Points().size(), c.seconds.size()) << c.what;
    for (std::size_t i = 0; i < c.seconds.size(); ++i)
      EXPECT_NEAR(track.Points()[i].seconds, c.seconds[i], 0.01) << c.what << ", point " << i;
    EXPECT_EQ(!track.Note().isEmpty(), c.spoken) << c.what << ": " << track.Note().toStdString();
  }
}

TEST(TrackTest, GivesEveryPlaceATimeOfDay) {
  Track track;
  QString reason;
  ASSERT_TRUE(track.ReadText(Road({"-", "10", "-", "30"}), &reason));
  EXPECT_NEAR(track.Points()[0].timeOfDay, 7 * 3600 + 4, 0.01);
  EXPECT_NEAR(track.Points()[2].timeOfDay, 7 * 3600 + 20, 0.01);
  EXPECT_NEAR(track.AtSeconds(9).timeOfDay, 7 * 3600 + 13, 0.01) << "it goes on between two points";
  EXPECT_NEAR(track.AtKm(0.25).timeOfDay, 7 * 3600 + 25, 0.01);
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

// Some receivers send RMC in front, some repeat a sentence late, some have no time before the first fix is good.
TEST(TrackTest, TakesNmeaInAnyOrderWithoutLosingADay) {
  const char* text = "$GPRMC,120000,A,4500.000,N,01300.000,E,,,060524,,\n"
                     "$GPGGA,120000,4500.000,N,01300.000,E,1,08,0.9,99.5,M,,M,,\n"
                     "$GPGGA,120010,4500.054,N,01300.000,E,1,08,0.9,99.5,M,,M,,\n"
                     "$GPGGA,120009,4500.060,N,01300.000,E,1,08,0.9,99.5,M,,M,,\n"
                     "$GPGGA,,4500.080,N,01300.000,E,1,08,0.9,99.5,M,,M,,\n"
                     "$GPGGA,120020,4500.108,N,01300.000,E,1,08,0.9,99.5,M,,M,,\n";
  Track track;
  QString reason;
  ASSERT_TRUE(track.ReadText(text, &reason));
  ASSERT_EQ(track.Points().size(), 5u);
  EXPECT_EQ(track.Points()[0].height, 99.5);
  EXPECT_NEAR(track.Points()[2].seconds, 11.1, 0.1);
  EXPECT_EQ(track.Seconds(), 20);
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
