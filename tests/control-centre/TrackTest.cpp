#include "Track.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <cmath>

namespace {

using control::Track, control::TrackPoint;

Track TrackOf(const QByteArray& text) {
  Track track;
  QString reason;
  EXPECT_TRUE(track.ReadText(text, &reason)) << reason.toStdString();
  return track;
}

// What it says of each point, rounded to a hundredth.
std::string Of(const Track& track, double TrackPoint::*what) {
  QStringList all;
  for (const auto& point : track.Points())
    all << QString::number(std::round(point.*what * 100) / 100, 'g', 12);
  return all.join(' ').toStdString();
}

constexpr const char* Gpx = R"(<?xml version="1.0"?><gpx><trk><trkseg>
<trkpt lat="45.0" lon="13.0"><ele>200</ele><time>2024-05-06T06:59:50Z</time></trkpt>
<trkpt lat="91.0" lon="13.0"><time>2024-05-06T06:59:55Z</time></trkpt>
<trkpt lat="45.0089932" lon="13.0"><ele>210</ele><time>2024-05-06T07:00:30Z</time></trkpt>
</trkseg><trkseg>
<trkpt lat="45.0179864" lon="13.0"><extensions><x/></extensions><time>2024-05-06T07:00:10Z</time></trkpt>
</trkseg></trk></gpx>)";

TEST(TrackTest, ReadsGpxAcrossSegmentsAndPassesOverImpossiblePositions) {
  const Track track = TrackOf(Gpx);
  EXPECT_EQ(Of(track, &TrackPoint::km), "0 1 2");
  EXPECT_NEAR(track.Points().back().km, 2.0, 0.001);
  EXPECT_EQ(Of(track, &TrackPoint::seconds), "0 40 100") << "the clock has jumped back: this kilometre takes a minute";
  EXPECT_EQ(Of(track, &TrackPoint::timeOfDay), "25190 25230 25210") << "what the receiver said is kept";
}

TEST(TrackTest, InterpolatesByWayAndByTimeAndStaysAtTheEnds) {
  const Track track = TrackOf(Gpx);
  EXPECT_NEAR(track.AtKm(0.5).latitude, 45.0044966, 1e-6);
  EXPECT_NEAR(track.AtKm(0.5).height, 205, 0.01);
  EXPECT_NEAR(track.AtSeconds(10).km, 0.25, 0.001);
  EXPECT_EQ(track.AtKm(-1).latitude, 45.0);
  EXPECT_NEAR(track.AtKm(99).latitude, 45.0179864, 1e-9);
}

// Points each 100 m to the north, "/" between two tracks; "-" has no time, the others stand at a second of one hour.
QByteArray Road(const QString& times) {
  QString text = "\uFEFF<gpx><trk><name>empty</name></trk><trk><trkseg>"; // a byte order mark, and a track of nothing
  int point = 0;
  for (const QString& time : times.split(' ')) {
    if (time == "/") {
      text += "</trkseg></trk><trk><trkseg>";
      continue;
    }
    text += QString("<trkpt lat='%1' lon='13'>").arg(45 + point++ * 0.00089932, 0, 'f', 8);
    if (time != "-")
      text += "<time>2024-05-06T07:00:" + time + "</time>"; // no zone: it is UTC all the same
    text += "</trkpt>";
  }
  return (text + "</trkseg></trk></gpx>").toUtf8();
}

// A hundred metres without times take 6 s (60 km/h) where no time stands on both sides.
TEST(TrackTest, NeverJumpsWhateverTheTimesSay) {
  const std::tuple<const char*, const char*, const char*> cases[] = {
      {"all are there", "00 10 / 30", "0 10 30"},
      {"none at all", "- - / -", "0 6 12"},
      {"one in the middle", "00 - - 30", "0 10 20 30"},
      {"none in the first track", "- - / 10 15", "0 6 12 17"},
      {"none at the end", "10 15 / - -", "0 5 11 17"},
      {"one that stands", "10 10 20", "0 5 10"},
      {"one that goes back", "10 20 12 40", "0 10 20 30"},
      {"tracks in the wrong order", "40 45 / 10 15 20", "0 5 11 16 21"},
      {"a dead clock", "10 12 12 12", "0 2 8 14"},
      {"one time alone", "- 10 -", "0 6 12"}};
  for (const auto& [what, times, seconds] : cases) {
    const Track track = TrackOf(Road(times));
    EXPECT_EQ(Of(track, &TrackPoint::seconds), seconds) << what;
    EXPECT_EQ(track.Note().isEmpty(), std::string(what) == "all are there")
        << what << ": " << track.Note().toStdString();
  }
}

TEST(TrackTest, GivesEveryPlaceATimeOfDay) {
  qputenv("TZ", "Asia/Tokyo"); // the machine's, which no time is meant in
  const Track track = TrackOf(Road("- 10 - 30"));
  EXPECT_EQ(Of(track, &TrackPoint::timeOfDay), "25204 25210 25220 25230");
  EXPECT_NEAR(track.AtSeconds(9).timeOfDay, 7 * 3600 + 13, 0.01) << "it goes on between two points";
  EXPECT_NEAR(track.AtKm(0.25).timeOfDay, 7 * 3600 + 25, 0.01);
}

TEST(TrackTest, ReadsNmeaOncePerFixAndRefusesBrokenSentences) {
  const char* text = "$GPGGA,235958,4807.038,N,01131.000,E,1,08,0.9,545.4,M,46.9,M,,\r\n"
                     "$GPRMC,235958,A,4807.038,N,01131.000,E,022.4,084.4,230394,003.1,W\r\n"
                     "$GPGGA,235959,4807.100,N,01131.000,E,0,00,,,M,,M,,\r\n"            // no fix
                     "$GPGGA,235959,4807.100,N,01131.000,E,1,08,0.9,545.4,M,,M,,*00\r\n" // wrong checksum
                     "noise\n"
                     "$GNRMC,000001,V,4807.110,N,01131.000,E,,,240394,,\n" // not valid
                     "$GNRMC,000002,A,4807.038,S,01131.000,W,,,240394,,\n";
  const Track track = TrackOf(text);
  EXPECT_EQ(Of(track, &TrackPoint::latitude), "48.12 -48.12");
  EXPECT_NEAR(track.Points()[1].longitude, -11.516667, 1e-6);
  EXPECT_EQ(Of(track, &TrackPoint::seconds), "0 4") << "past midnight";
  EXPECT_EQ(Of(track, &TrackPoint::height), "545.4 545.4");
}

// Some receivers send RMC in front, some repeat a sentence late, some have no time before the first fix is good.
TEST(TrackTest, TakesNmeaInAnyOrderWithoutLosingADay) {
  const char* text = "$GPRMC,120000,A,4500.000,N,01300.000,E,,,060524,,\n"
                     "$GPGGA,120000,4500.000,N,01300.000,E,1,08,0.9,99.5,M,,M,,\n"
                     "$GPGGA,120010.5,4500.054,N,01300.000,E,1,08,0.9,99.5,M,,M,,\n"
                     "$GPGGA,120009,4500.060,N,01300.000,E,1,08,0.9,99.5,M,,M,,\n"
                     "$GPGGA,,4500.080,N,01300.000,E,1,08,0.9,99.5,M,,M,,\n"
                     "$GPGGA,120020,4500.108,N,01300.000,E,1,08,0.9,99.5,M,,M,,\n";
  const Track track = TrackOf(text);
  EXPECT_EQ(Of(track, &TrackPoint::height), "99.5 99.5 99.5 99.5 99.5");
  EXPECT_EQ(Of(track, &TrackPoint::seconds), "0 10.5 11.56 15.07 20");
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
