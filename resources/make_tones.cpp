// Makes the tones that the program answers keys with: make_tones AUDIOFOLDER
//
//   Tones/D0.wav ... D9.wav      a key's digit as a tone, rising with the digit
//   SystemSounds/*.wav           a new step, a key without meaning, slow down
#include "WaveFile.h"

#include <array>
#include <iostream>
#include <numbers>

namespace {

constexpr double Loudness = 0.55;     // of full scale: a cab is loud, a distorting speaker is worse
constexpr double FadeSeconds = 0.012; // a cut-off tone clicks

double Fade(int i, int n) {
  const double edge = std::min({1.0, i / (FadeSeconds * Rate), (n - 1 - i) / (FadeSeconds * Rate)});
  return 0.5 - 0.5 * std::cos(std::numbers::pi * edge);
}

// A struck bar rather than a whistle: two partials, the upper one dying away first.
void AddTone(Samples& to, double hertz, double seconds) {
  const int n = Count(seconds);
  for (int i = 0; i < n; ++i) {
    const double t = static_cast<double>(i) / Rate, phase = 2 * std::numbers::pi * hertz * t;
    const double voice = 0.75 * std::sin(phase) + 0.25 * std::exp(-t * 30) * std::sin(3 * phase);
    to.push_back(Loudness * voice * Fade(i, n) * std::exp(-t * 4));
  }
}

// Harsh on purpose: it tells that a key did nothing.
void AddBuzz(Samples& to, double hertz, double seconds) {
  const int n = Count(seconds);
  for (int i = 0; i < n; ++i) {
    const double phase = 2 * std::numbers::pi * hertz * i / Rate;
    double voice = 0;
    for (int partial = 1; partial <= 7; partial += 2)
      voice += std::sin(partial * phase) / partial;
    to.push_back(0.8 * Loudness * voice * Fade(i, n));
  }
}

void AddSilence(Samples& to, double seconds) {
  to.insert(to.end(), static_cast<std::size_t>(Count(seconds)), 0.0);
}

double Semitones(double base, int n) {
  return base * std::pow(2.0, n / 12.0);
}

// Five tones to the octave: whichever two follow each other, they sound well together and are told apart at once.
Samples DigitTone(int digit) {
  constexpr std::array<int, 10> scale = {0, 2, 4, 7, 9, 12, 14, 16, 19, 21};
  Samples s;
  AddTone(s, Semitones(392.0, scale[static_cast<std::size_t>(digit)]), 0.12);
  return s;
}

Samples NewSegment() {
  Samples s;
  AddTone(s, 1046.5, 0.06);
  AddTone(s, 1568.0, 0.09);
  return s;
}

Samples UndefinedKey() {
  Samples s;
  AddBuzz(s, 130, 0.2);
  return s;
}

Samples SlowDown() {
  Samples s;
  for (const double hertz : {1318.5, 1046.5, 784.0}) {
    AddTone(s, hertz, 0.12);
    AddSilence(s, 0.03);
  }
  return s;
}

bool WriteAll(const std::filesystem::path& audio) {
  bool good = true;
  for (int digit = 0; digit < 10; ++digit) {
    const std::string name = "D" + std::to_string(digit) + ".wav";
    good &= WriteWave(audio / "Tones" / name, DigitTone(digit));
  }
  good &= WriteWave(audio / "SystemSounds" / "newsegment.wav", NewSegment());
  good &= WriteWave(audio / "SystemSounds" / "undefinedkey.wav", UndefinedKey());
  return WriteWave(audio / "SystemSounds" / "slowdown.wav", SlowDown()) && good;
}

} // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "make_tones AUDIOFOLDER\n";
    return 2;
  }
  if (WriteAll(argv[1]))
    return 0;
  std::cerr << "make_tones: cannot write below " << argv[1] << "\n";
  return 1;
}
