// Makes the wave files that speak: make_voice ESPEAK AUDIOFOLDER VOCABULARY MESSAGES STAMP
//
//   English/O101.wav ...        the names of the vocabulary's items
//   English/401.wav ...         the messages of the catalogue
//   LANGUAGE/D0.wav ... D9.wav  the digits, in each language
//
// ESPEAK is the speech synthesizer; VOCABULARY and MESSAGES are the databases that the build has just made. STAMP is
// written when all is done. The folders of the languages hold nothing else, so that an item that has gone loses its
// word.
#include "WaveFile.h"

#include <sqlite3.h>

#include <array>
#include <cstdio>
#include <iostream>
#include <iterator>
#include <map>
#include <memory>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace {

namespace fs = std::filesystem;

struct Language {
  const char *folder, *voice;
};
constexpr std::array<Language, 5> Languages{{{"English", "en-gb"},
                                             {"Danish", "da"},
                                             {"Korean", "ko"},
                                             {"Chinese", "cmn"}, // Mandarin
                                             {"Russian", "ru"}}};

constexpr const char* WordsAMinute = "170"; // the next key may follow at once
constexpr double Loudness = 0.2;            // root mean square, of full scale
constexpr double Peak = 0.95;
constexpr double Silence = 0.02; // of the loudest sample; what is softer at the ends is cut off
constexpr double LeadSeconds = 0.005, TailSeconds = 0.02;
constexpr double ClickSeconds = 0.001; // what is cut off faster than that clicks

// File name without its end, and the words.
using Words = std::map<std::string, std::string>;

// Numbers and words of a query with two columns.
bool Read(const std::string& database, const char* query, const std::string& prefix, Words& to) {
  sqlite3* db = nullptr;
  sqlite3_stmt* rows = nullptr;
  int result = sqlite3_open_v2(database.c_str(), &db, SQLITE_OPEN_READONLY, nullptr);
  if (result == SQLITE_OK)
    result = sqlite3_prepare_v2(db, query, -1, &rows, nullptr);
  while (result == SQLITE_OK && (result = sqlite3_step(rows)) == SQLITE_ROW) {
    to[prefix + std::to_string(sqlite3_column_int(rows, 0))] =
        reinterpret_cast<const char*>(sqlite3_column_text(rows, 1));
    result = SQLITE_OK;
  }
  sqlite3_finalize(rows);
  sqlite3_close(db);
  return result == SQLITE_DONE;
}

// The synthesizer's own file.
bool Speak(const std::string& espeak, const char* voice, const std::string& words, const std::string& file) {
  std::array<std::string, 9> arguments{espeak, "-v", voice, "-s", WordsAMinute, "-w", file, "--", words};
  std::array<char*, 10> argv{};
  std::transform(arguments.begin(), arguments.end(), argv.begin(), [](std::string& a) { return a.data(); });
  pid_t child = 0;
  int status = -1;
  return posix_spawn(&child, espeak.c_str(), nullptr, nullptr, argv.data(), environ) == 0 &&
         waitpid(child, &status, 0) == child && status == 0;
}

// Empty when the file isn't of the kind that we write ourselves.
Samples Load(const std::string& file) {
  constexpr std::size_t Head = 44;
  std::ifstream in(file, std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(in), {}};
  const std::string ours = WaveFile({});
  Samples samples;
  if (bytes.size() < Head || bytes.compare(8, 32, ours, 8, 32) != 0)
    return samples;
  for (std::size_t i = Head; i + 1 < bytes.size(); i += 2)
    samples.push_back((static_cast<unsigned char>(bytes[i]) + 256 * static_cast<signed char>(bytes[i + 1])) / 32768.0);
  return samples;
}

double Loudest(const Samples& s) {
  double loudest = 0;
  for (const double x : s)
    loudest = std::max(loudest, std::abs(x));
  return loudest;
}

// Without the silence at both ends, which would make each key late.
Samples Trimmed(const Samples& s) {
  const double limit = Silence * Loudest(s);
  const auto loud = [limit](double x) { return std::abs(x) > limit; };
  const auto first = std::find_if(s.begin(), s.end(), loud);
  const auto last = std::find_if(s.rbegin(), s.rend(), loud).base();
  const auto lead = std::min<std::ptrdiff_t>(Count(LeadSeconds), first - s.begin());
  const auto tail = std::min<std::ptrdiff_t>(Count(TailSeconds), s.end() - last);
  Samples t(first - lead, last + tail);
  const std::ptrdiff_t edge = std::min(Count(ClickSeconds), static_cast<int>(t.size() / 2));
  const auto fade = [](auto sample, std::ptrdiff_t length) {
    for (std::ptrdiff_t i = 0; i < length; ++i)
      *sample++ *= static_cast<double>(i) / static_cast<double>(length);
  };
  fade(t.begin(), std::max(lead, edge));
  fade(t.rbegin(), std::max(tail, edge));
  return t;
}

// Amplified, the highest peaks rounded off rather than clipped.
Samples Amplified(const Samples& s, double by) {
  Samples t;
  for (const double x : s)
    t.push_back(Peak * std::tanh(by * x / Peak));
  return t;
}

double RootMeanSquare(const Samples& s) {
  double sum = 0;
  for (const double x : s)
    sum += x * x;
  return std::sqrt(sum / static_cast<double>(s.size()));
}

// The rounding takes some of the loudness away, so the right factor is searched for.
Samples Levelled(const Samples& s) {
  double low = 0, high = 100;
  for (int i = 0; i < 30; ++i) {
    const double middle = (low + high) / 2;
    (RootMeanSquare(Amplified(s, middle)) < Loudness ? low : high) = middle;
  }
  return Amplified(s, low);
}

// A language that the synthesizer has no voice for is left out whole. False when a file can't be written.
bool Make(const std::string& espeak, const Language& language, const Words& words, const fs::path& audio) {
  const fs::path folder = audio / language.folder;
  const std::string raw = folder.string() + ".raw";
  std::error_code ignored;
  fs::remove_all(folder, ignored);
  fs::create_directories(audio, ignored);
  bool spoken = true, written = true;
  for (auto i = words.begin(); i != words.end() && spoken && written; ++i) {
    fs::remove(raw, ignored);
    const Samples samples = Speak(espeak, language.voice, i->second, raw) ? Load(raw) : Samples();
    spoken = Loudest(samples) > 0;
    written = !spoken || WriteWave(folder / (i->first + ".wav"), Levelled(Trimmed(samples)));
  }
  fs::remove(raw, ignored);
  if (!spoken) {
    std::cerr << "make_voice: cannot speak " << language.folder << ", it is left out\n";
    fs::remove_all(folder, ignored);
  }
  return written;
}

} // namespace

int main(int argc, char** argv) {
  if (argc != 6) {
    std::cerr << "make_voice ESPEAK AUDIOFOLDER VOCABULARY MESSAGES STAMP\n";
    return 2;
  }
  Words digits;
  for (int digit = 0; digit < 10; ++digit)
    digits["D" + std::to_string(digit)] = std::to_string(digit);
  Words english = digits;
  if (!Read(argv[3], "SELECT ObsCode, ObsNameDisp FROM ObsLinguistic WHERE ObsNameDisp <> ''", "O", english) ||
      !Read(argv[4], "SELECT ID, English FROM Messages WHERE English <> ''", "", english)) {
    std::cerr << "make_voice: cannot read the names and messages\n";
    return 1;
  }
  for (const Language& language : Languages)
    if (!Make(argv[1], language, language.folder == std::string("English") ? english : digits, argv[2])) {
      std::cerr << "make_voice: cannot write below " << argv[2] << "\n";
      return 1;
    }
  return std::ofstream(argv[5]) << "made\n" ? 0 : 1;
}
