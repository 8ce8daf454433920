// What the windows cost, each beside its floor in the same run: a key to its changed picture and a new row against a
// bare grid that paints itself, the start against an empty window, the idle program against a bare timer of 25 ms.
//
//   trekor_gui_bench [TREKOR]     the path of the program for the last two; without it they are left out
#include "views/GridView.h"
#include "views/QtShell.h"
#include "views/Theme.h"

#include "support/FakePlatform.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QPainter>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <dirent.h>
#include <fstream>
#include <functional>
#include <random>
#include <vector>

namespace trekor {
namespace {

constexpr int Columns = 41, HeadRows = 4, DataRows = 12, Beat = 25;
constexpr int RowHeight = 32, ColumnWidth = 62;

struct Spread {
  double p50 = 0, p99 = 0;
};

Spread SpreadOf(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return {values[values.size() / 2], values[values.size() * 99 / 100]};
}

void Tell(const char* what, Spread ours, Spread floor, const char* unit) {
  std::printf("%-28s ours p50 %9.3f p99 %9.3f   floor p50 %9.3f p99 %9.3f %s   ratio p50 %.2f p99 %.2f\n", what,
              ours.p50, ours.p99, floor.p50, floor.p99, unit, ours.p50 / floor.p50, ours.p99 / floor.p99);
  std::fflush(stdout);
}

// The place of a cell among all of them, row behind row.
std::size_t Place(int row, int col) {
  return static_cast<std::size_t>(row) * Columns + static_cast<std::size_t>(col);
}

// The floor: cells of text in a widget, the changed ones drawn, a new row moved in. Nothing else.
class BareGrid : public QWidget {
public:
  BareGrid() : cells(Place(HeadRows + DataRows, 0)) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    QFont f = font();
    f.setPixelSize(16);
    setFont(f);
    resize(1024, 640);
  }
  void Write(int row, int col, const QString& text) {
    cells[Place(row, col)] = text;
    update(col * ColumnWidth, row * RowHeight, ColumnWidth, RowHeight);
  }
  void NewRow() {
    cells.insert(std::next(cells.begin(), std::ptrdiff_t{HeadRows} * Columns), Columns, QString());
    cells.resize(Place(HeadRows + DataRows, 0));
    scroll(0, RowHeight, QRect(0, HeadRows * RowHeight, width(), height() - HeadRows * RowHeight));
  }
  std::function<void()> onKey;
  bool painted = false;

protected:
  void keyPressEvent(QKeyEvent*) override { onKey(); }
  void paintEvent(QPaintEvent* e) override {
    QPainter p(this);
    for (const QRect& area : e->region())
      for (int r = area.top() / RowHeight; r <= area.bottom() / RowHeight; ++r)
        for (int c = area.left() / ColumnWidth; c <= area.right() / ColumnWidth; ++c)
          PaintCell(p, r, c);
    painted = true;
  }

private:
  void PaintCell(QPainter& p, int r, int c) {
    const QRect cell(c * ColumnWidth, r * RowHeight, ColumnWidth, RowHeight);
    p.fillRect(cell, Qt::white);
    p.drawLine(cell.bottomLeft(), cell.bottomRight());
    p.drawLine(cell.topRight(), cell.bottomRight());
    if (r < HeadRows + DataRows && c < Columns)
      p.drawText(cell, Qt::AlignCenter, cells[Place(r, c)]);
  }
  std::vector<QString> cells;
};

struct GridForm : Form {
  GridForm() : Form("GridForm") {
    Move(0, 0, 1024 * 15, 640 * 15);
    grid.Move(0, 0, 1024 * 15, 640 * 15);
    grid.SetCols(Columns);
    grid.SetFixedRows(HeadRows);
    grid.SetRows(HeadRows + DataRows);
    for (int c = 0; c < Columns; ++c)
      grid.SetCellPicture(1, c, "BAR:0");
    tick.SetInterval(Beat);
  }
  Grid grid{*this, "Grid"};
  Timer tick{*this, "IdleTimer"};
};

// Raises a flag when a widget has been painted.
class PaintWatch : public QObject {
public:
  explicit PaintWatch(QWidget* w) { w->installEventFilter(this); }
  bool eventFilter(QObject*, QEvent* e) override {
    painted |= e->type() == QEvent::Paint;
    return false;
  }
  bool painted = false;
};

// Milliseconds from an act to the end of the turn that has painted what it changed.
std::vector<double> Times(int count, int mostPause, const std::function<void(int)>& act, bool& painted) {
  std::mt19937 dice(7);
  std::vector<double> times;
  for (int i = 0; i < count; ++i) {
    if (mostPause > 0)
      QTest::qWait(static_cast<int>(dice() % static_cast<unsigned>(mostPause)));
    QApplication::processEvents();
    painted = false;
    QElapsedTimer clock;
    clock.start();
    act(i);
    while (!painted && clock.elapsed() < 1000)
      QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    times.push_back(static_cast<double>(clock.nsecsElapsed()) / 1e6);
  }
  return times;
}

void Keys() {
  constexpr int few = 200, many = 2000;
  tests::FakeDrives drives;
  QtShell shell(drives);
  GridForm form;
  bool key = false;
  int value = 0;
  const auto write = [&](int i) {
    form.grid.SetText(HeadRows, 1 + i % 12, std::to_string(i));
    form.grid.SetCellPicture(1, 1 + i % 12, "BAR:" + std::to_string(i % 11));
  };
  form.OnKeyDown = [&](int, int) { return key = true; };
  form.tick.OnTimer = [&] {
    if (std::exchange(key, false))
      write(++value);
  };
  shell.Load(form);
  shell.Show(form);
  QWindow* window = nullptr;
  QWidget* viewport = nullptr;
  for (QWidget* w : QApplication::topLevelWidgets())
    if (const auto views = w->findChildren<QAbstractScrollArea*>(); !views.empty()) {
      window = w->windowHandle();
      viewport = views.last()->viewport(); // the grid in the page of its window
    }
  PaintWatch watch(viewport);
  QTest::qWait(300);
  form.tick.SetRunning(true);
  const auto ourKeys = Times(
      few, 60, [&](int) { QTest::sendKeyEvent(QTest::Press, window, Qt::Key_A, QString("a"), {}); }, watch.painted);
  form.tick.SetRunning(false);
  const auto ourCells = Times(many, 0, write, watch.painted);
  const auto ourRows = Times(
      many, 0,
      [&](int) {
        form.grid.SetRedraw(false);
        form.grid.AddItem("0.100 to 0.200", HeadRows);
        form.grid.RemoveItem(HeadRows + DataRows);
        form.grid.SetRedraw(true);
      },
      watch.painted);
  shell.UnloadAll();

  BareGrid bare;
  bool bareKey = false;
  bare.onKey = [&] { bareKey = true; };
  const auto bareWrite = [&](int i) {
    bare.Write(HeadRows, 1 + i % 12, QString::number(i));
    bare.Write(1, 1 + i % 12, QString::number(i % 11));
  };
  QTimer tick;
  tick.setTimerType(Qt::PreciseTimer);
  QObject::connect(&tick, &QTimer::timeout, [&] {
    if (std::exchange(bareKey, false))
      bareWrite(++value);
  });
  bare.show();
  bare.activateWindow();
  QTest::qWait(300);
  tick.start(Beat);
  const auto bareKeys = Times(
      few, 60, [&](int) { QTest::sendKeyEvent(QTest::Press, bare.windowHandle(), Qt::Key_A, QString("a"), {}); },
      bare.painted);
  tick.stop();
  const auto bareCells = Times(many, 0, bareWrite, bare.painted);
  const auto bareRows = Times(
      many, 0, [&](int) { bare.NewRow(); }, bare.painted);
  Tell("key behind the tick", SpreadOf(ourKeys), SpreadOf(bareKeys), "ms");
  Tell("cell and bar", SpreadOf(ourCells), SpreadOf(bareCells), "ms");
  Tell("new row", SpreadOf(ourRows), SpreadOf(bareRows), "ms");
}

// Another process, started anew for each measurement.
class Child {
public:
  Child(const QString& program, const QStringList& arguments, const QString& drives) {
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("TREKOR_TRACE", "1");
    env.insert("TREKOR_DRIVES", drives);
    process.setProcessEnvironment(env);
    process.setReadChannel(QProcess::StandardError);
    clock.start();
    process.start(program, arguments);
  }
  ~Child() {
    process.kill();
    process.waitForFinished();
  }
  double MillisecondsToPicture() {
    QByteArray said;
    while (!said.contains("first picture") && process.waitForReadyRead(10000))
      said += process.readAllStandardError();
    return static_cast<double>(clock.nsecsElapsed()) / 1e6;
  }
  // Nanoseconds of processor time of all its threads.
  double Processor() const {
    const std::string folder = "/proc/" + std::to_string(process.processId()) + "/task/";
    double sum = 0;
    if (DIR* tasks = opendir(folder.c_str())) {
      while (const dirent* task = readdir(tasks)) {
        double ran = 0;
        if (std::ifstream(folder + task->d_name + "/schedstat") >> ran)
          sum += ran;
      }
      closedir(tasks);
    }
    return sum;
  }
  double ShareOfACore(int seconds) {
    MillisecondsToPicture();
    QTest::qWait(2500); // what the start leaves to do afterwards
    const double before = Processor();
    QTest::qWait(seconds * 1000);
    return (Processor() - before) / (seconds * 1e7);
  }
  QProcess process;
  QElapsedTimer clock;
};

void Processes(const QString& self, const QString& trekor) {
  QTemporaryDir drives;
  const QStringList line{"7707-104", "/US"};
  Child(trekor, line, drives.path()).MillisecondsToPicture(); // the first start of a release fills its folders
  std::vector<double> ours, floor;
  for (int i = 0; i < 11; ++i) {
    ours.push_back(Child(trekor, line, drives.path()).MillisecondsToPicture());
    floor.push_back(Child(self, {"--empty"}, drives.path()).MillisecondsToPicture());
  }
  Tell("start to first picture", SpreadOf(ours), SpreadOf(floor), "ms");
  constexpr int seconds = 15;
  const double idle = Child(trekor, line, drives.path()).ShareOfACore(seconds);
  const double bare = Child(self, {"--empty"}, drives.path()).ShareOfACore(seconds);
  Tell("idle", {idle, idle}, {bare, bare}, "% of a core");
}

// The floor of a program: a window, a timer that does nothing.
class EmptyWindow : public QWidget {
protected:
  void paintEvent(QPaintEvent*) override {
    if (!std::exchange(told, true))
      QTimer::singleShot(0, [] { std::fputs("first picture\n", stderr); });
  }
  bool told = false;
};

int ShowEmpty() {
  EmptyWindow window;
  window.resize(1024, 700);
  window.show();
  QTimer tick;
  tick.setTimerType(Qt::PreciseTimer);
  QObject::connect(&tick, &QTimer::timeout, [] {});
  tick.start(Beat);
  return QApplication::exec();
}

} // namespace
} // namespace trekor

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  if (argc > 1 && std::strcmp(argv[1], "--empty") == 0)
    return trekor::ShowEmpty();
  trekor::theme::Apply(app);
  trekor::Keys();
  if (argc > 1)
    trekor::Processes(argv[0], argv[1]);
  return 0;
}
