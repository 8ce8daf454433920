// Keys under load: an operator types 35 keys a second while the control program sends 1,000 positions and the road a
// new row every 100 ms. Each key is pressed through the window system, looked for in the picture of its column, and
// counted in the data file: none may be lost, and each must be in the picture within two ticks.
//
//   trekor_keys_bench TREKOR PORT KEYS [TICKS]
//
// DISPLAY names a display that nobody else uses, TREKOR_DRIVES fresh drives with the sample vocabulary, which is
// changed so that every item counts in a step; where a start on a small screen has left a narrow window, columns would
// move and the bench gives up. PORT is the link's there. The exit code is 0 when no key was lost and each was seen
// within TICKS (2). While many keys are unseen the operator waits, and such a key is late then. Where the machine gives
// the program no turn for a second, the ring of 16 keys overflows all the same.
#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>
#include <arpa/inet.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sqlite3.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr double Tick = 25, KeysPerSecond = 35, LinesPerSecond = 1000, StepKm = 0.1;
// Behind the second tick the picture has to be painted and reach the screen.
constexpr double PaintMilliseconds = 5;
// Those whose columns the window shows at its first size. A column comes again when its last cell has moved three rows
// down.
constexpr std::array<KeySym, 11> Keys = {XK_a, XK_s, XK_d, XK_f, XK_r, XK_b, XK_p, XK_e, XK_F5, XK_F6, XK_c};

pid_t program = 0; // Trekor's process

// Trekor holds the caller's pipes: whoever waits for the end of the output would wait for ever if it went on.
[[noreturn]] void Give(const char* up) {
  std::fprintf(stderr, "trekor_keys_bench: %s\n", up);
  if (program > 0)
    kill(program, SIGKILL);
  std::exit(2);
}

double Now() {
  return Milliseconds(Clock::now().time_since_epoch()).count();
}

void Sleep(double milliseconds) {
  std::this_thread::sleep_for(Milliseconds(milliseconds));
}

// ---- the databases

std::string Drive(const char* path) {
  const char* root = std::getenv("TREKOR_DRIVES");
  if (!root)
    Give("no TREKOR_DRIVES");
  return std::string(root) + path;
}

// The first field of the first row, 0 when there is none.
long long Ask(const std::string& file, const char* sql) {
  sqlite3* db = nullptr;
  long long answer = 0;
  const auto first = [](void* into, int, char** fields, char**) {
    *static_cast<long long*>(into) = fields[0] ? std::atoll(fields[0]) : 0;
    return 0;
  };
  if (sqlite3_open_v2(file.c_str(), &db, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK ||
      sqlite3_exec(db, sql, first, &answer, nullptr) != SQLITE_OK)
    Give(sqlite3_errmsg(db));
  sqlite3_close(db);
  return answer;
}

// ---- the control program

class Link {
public:
  explicit Link(int port) : server(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    const int on = 1;
    setsockopt(server, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    if (bind(server, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0 || listen(server, 1) != 0)
      Give("the port is taken");
  }
  void Accept() {
    pollfd waiting{server, POLLIN, 0};
    if (poll(&waiting, 1, 60000) != 1)
      Give("the program does not connect");
    peer = accept4(server, nullptr, nullptr, SOCK_CLOEXEC);
    const int on = 1;
    setsockopt(peer, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
  }
  void Send(const std::string& line) const {
    const std::string bytes = line + "\r\n";
    if (send(peer, bytes.data(), bytes.size(), MSG_NOSIGNAL) < 0)
      Give("the link is gone");
  }
  // Whether a text comes within so many seconds; what came before it is dropped.
  bool Hears(std::string_view text, double seconds) {
    const double end = Now() + seconds * 1000;
    for (;;) {
      if (const auto place = heard.find(text); place != std::string::npos) {
        heard.erase(0, place + text.size());
        return true;
      }
      pollfd waiting{peer, POLLIN, 0};
      std::array<char, 4096> bytes{};
      const int left = static_cast<int>(end - Now());
      const ssize_t n =
          left > 0 && poll(&waiting, 1, left) == 1 ? recv(peer, bytes.data(), bytes.size(), MSG_DONTWAIT) : 0;
      if (n <= 0)
        return false;
      heard.append(bytes.data(), static_cast<std::size_t>(n));
    }
  }
  void Await(const char* text) {
    if (!Hears(text, 30))
      Give(text);
  }
  void Order(const std::string& words) {
    Send("CTRL " + words);
    Await(("ACK Trekor CTRL " + words.substr(0, words.find(' '))).c_str());
  }
  void At(double km) const {
    std::array<char, 32> line{};
    std::snprintf(line.data(), line.size(), "DMI %.3f", km);
    Send(line.data());
  }

private:
  int server, peer = -1;
  std::string heard;
};

// ---- the operator

struct Box {
  int left = 0, top = 0, right = -1, bottom = -1; // all within
  bool Empty() const { return right < left; }
  bool operator==(const Box&) const = default;
};

struct DestroyImage {
  void operator()(XImage* image) const { XDestroyImage(image); }
};
using Image = std::unique_ptr<XImage, DestroyImage>;

bool IsInk(const Image& image, int x, int y) {
  const unsigned long pixel = XGetPixel(image.get(), x, y);
  return ((pixel >> 16) & 255) + ((pixel >> 8) & 255) + (pixel & 255) < 300;
}

class Screen {
public:
  Screen() : display(XOpenDisplay(nullptr)) {
    if (!display)
      Give("no display");
    XSetErrorHandler([](Display*, XErrorEvent*) { return 0; }); // a window may close between two calls
  }
  bool HasFocus() const {
    Window focused = None;
    int revert = 0;
    XGetInputFocus(display, &focused, &revert);
    return focused != None && focused != PointerRoot;
  }
  void Press(KeySym key) const {
    const KeyCode code = XKeysymToKeycode(display, key);
    XTestFakeKeyEvent(display, code, True, CurrentTime);
    XTestFakeKeyEvent(display, code, False, CurrentTime);
    XFlush(display);
  }
  Image Take(const Box& box) const {
    Image image(XGetImage(display, DefaultRootWindow(display), box.left, box.top,
                          static_cast<unsigned>(box.right - box.left + 1),
                          static_cast<unsigned>(box.bottom - box.top + 1), AllPlanes, ZPixmap));
    if (!image)
      Give("no picture of the screen");
    return image;
  }
  Image TakeAll() const { return Take({0, 0, DisplayWidth(display, 0) - 1, DisplayHeight(display, 0) - 1}); }
  bool HasInk(const Box& box) const {
    const Image image = Take(box);
    for (int y = 0; y < image->height; ++y)
      for (int x = 0; x < image->width; ++x)
        if (IsInk(image, x, y))
          return true;
    return false;
  }

private:
  Display* display;
};

// Where there is ink now that was not there before: the lowest lines of text, which lie below the grid's head.
Box LowestNewInk(const Image& before, const Image& now) {
  constexpr int gap = 6; // pixels between two texts
  Box box;
  for (int y = now->height - 1; y >= 0 && (box.Empty() || y > box.top - gap); --y)
    for (int x = 0; x < now->width; ++x)
      if (IsInk(now, x, y) && !IsInk(before, x, y))
        box = box.Empty() ? Box{x, y, x, y} : Box{std::min(box.left, x), y, std::max(box.right, x), box.bottom};
  return box;
}

// ---- the drive

struct Column {
  KeySym key;
  Box cell; // of the newest row, as far as its text reaches
};

// A key whose cell is not yet in the picture.
struct Pressed {
  const Column* column;
  double at;
  double lookedAt;  // the cell was missing then
  bool belowHadInk; // an older cell of the column
};

class Operator {
public:
  explicit Operator(Link& controlProgram) : link(controlProgram) {}

  // The place of each key's cell, learnt by pressing it while the vehicle stands.
  void Learn() {
    for (int rows = 0; rows < 4; ++rows)
      Cross();
    for (const KeySym key : Keys)
      columns.push_back({key, NewInkOf([&] { screen.Press(key); })});
    for (std::size_t i = 1; i < columns.size(); ++i)
      if (columns[i].cell.left <= columns[i - 1].cell.right)
        Give("a column was scrolled into view: the window is narrower than at first");
    Cross();
    pitch = NextInkBelow(columns[0].cell) - columns[0].cell.top;
    for (int rows = 0; rows < 3; ++rows)
      Cross();
  }

  // Presses the keys at their times and looks for each until it is seen.
  void Type(int count, double longest) {
    const double begin = Now();
    for (int pressed = 0, lines = 0; pressed < count || !waiting.empty();) {
      const double now = Now();
      for (; lines < (now - begin) / 1000 * LinesPerSecond; ++lines)
        link.At(km += 1 / LinesPerSecond);
      if (pressed < count && waiting.size() < MostWaiting && now - begin >= pressed * 1000 / KeysPerSecond) {
        const Column& column = columns[static_cast<std::size_t>(pressed++) % columns.size()];
        waiting.push_back({&column, now, now, screen.HasInk(RowBelow(column.cell))});
        waiting.back().at = waiting.back().lookedAt = Now();
        screen.Press(column.key);
      }
      Look(longest);
      Sleep(0.5);
    }
  }

  bool Tell(double longest) {
    std::sort(seen.begin(), seen.end());
    const auto at = [&](double part) {
      return seen[static_cast<std::size_t>(static_cast<double>(seen.size() - 1) * part)];
    };
    std::printf("keys under load: %zu, seen after p50 %.1f p99 %.1f most %.1f ms; %d later than %.0f ticks, %d never\n",
                seen.size(), at(0.5), at(0.99), seen.back(), late, longest / Tick, never);
    return late == 0 && never == 0;
  }

  int Learnt() const { return static_cast<int>(columns.size()); }
  double Km() const { return km; }

private:
  static constexpr double Patience = 5000;
  static constexpr std::size_t MostWaiting = 12;

  void Cross() {
    NewInkOf([&] { link.At(km += StepKm); });
  }
  // What an act has written, when it no longer grows.
  Box NewInkOf(const std::function<void()>& act) const {
    const Image before = screen.TakeAll();
    act();
    Box last, found;
    for (const double end = Now() + Patience; found.Empty() || !(found == last);
         found = LowestNewInk(before, screen.TakeAll())) {
      if (Now() > end)
        Give("an act is not seen");
      last = found;
      Sleep(60);
    }
    return found;
  }
  int NextInkBelow(const Box& cell) const {
    Box line{cell.left, cell.bottom + 1, cell.right, cell.bottom + 1};
    for (; !screen.HasInk(line); ++line.top, ++line.bottom)
      if (line.top - cell.bottom > 100)
        Give("the rows do not move");
    return line.top;
  }
  Box RowBelow(const Box& cell) const { return {cell.left, cell.top + pitch, cell.right, cell.bottom + pitch}; }
  bool Shown(const Pressed& key) const {
    return screen.HasInk(key.column->cell) || (!key.belowHadInk && screen.HasInk(RowBelow(key.column->cell)));
  }
  // A key counts as late when its cell was still missing after that time: the look that finds it may itself come late.
  void Look(double longest) {
    std::erase_if(waiting, [&](Pressed& key) {
      const double look = Now();
      const bool shown = Shown(key);
      if (shown)
        seen.push_back(Now() - key.at);
      else if (look - key.at < Patience) {
        key.lookedAt = look;
        return false;
      }
      never += shown ? 0 : 1;
      late += key.lookedAt - key.at > longest + PaintMilliseconds ? 1 : 0;
      return true;
    });
  }

  Link& link;
  Screen screen;
  std::vector<Column> columns;
  std::vector<Pressed> waiting;
  std::vector<double> seen; // milliseconds
  double km = 2;
  int pitch = 0, late = 0, never = 0;
};

pid_t StartProgram(const char* path) {
  const pid_t child = fork();
  if (child == 0) {
    execl(path, path, "7707-104", "/US", static_cast<char*>(nullptr));
    _exit(127);
  }
  return child;
}

void BeginRun(Link& link, double km) {
  for (const char* line : {"FILE PATH C:\\Roads", "FILE NAME KEYS", "FILE OPEN"})
    link.Send(line);
  link.Order("ARM");
  link.At(km);
  link.Order("PREPARE 2.000");
  link.Order("START");
  do // the run can be suspended as soon as it goes
    link.Send("CTRL SUSPEND");
  while (!link.Hears("CTRL PAUSE", 0.2));
  for (int twice = 0; twice < 2; ++twice) { // the first answer comes before the run goes on
    link.Order("RESUME");
    link.Await("STATUS START");
  }
}

void EndRun(Link& link) {
  link.Order("STOP");
  link.Await("STATUS STOP");
  do
    link.Send("FILE CLOSE");
  while (!link.Hears("FILE CLOSE", 0.5));
}

} // namespace

int main(int argc, char** argv) {
  if (argc < 4) {
    std::fputs("usage: trekor_keys_bench TREKOR PORT KEYS [TICKS]\n", stderr);
    return 2;
  }
  const int count = std::atoi(argv[3]);
  const double longest = Tick * (argc > 4 ? std::atof(argv[4]) : 2);
  Ask(Drive("/C/Veldmark/Trekor/MDB/Observations.mdb"),
      "UPDATE Observations SET DataType=1, Min=0, Max=99, RegModeCode=1, KeyingCode=1");
  Link link(std::atoi(argv[2]));
  program = StartProgram(argv[1]);
  link.Accept();
  link.Await("SET SYSTEM ");
  Operator person(link);
  BeginRun(link, person.Km());
  person.Learn();
  person.Type(count, longest);
  EndRun(link);
  link.Send("CTRL EXIT");
  int ended = 1;
  waitpid(program, &ended, 0);
  const bool quick = person.Tell(longest);
  const long long stored =
      Ask(Drive("/C/Roads/KEYS.mdb"), "SELECT sum(RegData) FROM Registrations WHERE FromID<>ToID") - person.Learnt();
  std::printf("%d pressed, %lld stored: %s\n", count, stored, stored == count ? "none lost" : "LOST");
  return stored == count && quick && ended == 0 ? 0 : 1;
}
