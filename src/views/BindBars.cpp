// Bindings of what lies around the controls or is not seen: tabs, tool bar, status bar, menus, timers, image lists.
#include "views/Binding.h"
#include "views/PaintedBinding.h"
#include "views/Theme.h"
#include "views/Twips.h"

#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QTabBar>
#include <QTimer>
#include <QToolTip>

#include <algorithm>

namespace trekor {

namespace {

// The bar of tabs with the sheet that they lie on.
class TabSheet : public QWidget {
public:
  explicit TabSheet(QWidget* parent) : QWidget(parent), bar(new QTabBar(this)) {
    bar->setExpanding(false);
    bar->setDrawBase(false);
    bar->setFocusPolicy(Qt::NoFocus); // the keys belong to the run
  }
  QTabBar* const bar;

protected:
  void resizeEvent(QResizeEvent*) override { bar->setGeometry(0, 0, width(), bar->sizeHint().height()); }
  void paintEvent(QPaintEvent*) override {
    QPainter p(this);
    const theme::Colours& colours = theme::In(*this);
    p.setPen(QColor(colours.Line));
    p.setBrush(QColor(colours.Desk).lighter(103));
    p.drawRect(rect().adjusted(0, bar->height() - 1, -1, -1));
  }
};

class TabBinding : public Binding {
public:
  TabBinding(TabStrip& c, BindingPlace& p) : Binding(c, p), tabs(c) {}

private:
  QWidget* Make(QWidget* parent) override {
    sheet = new TabSheet(parent);
    connect(sheet->bar, &QTabBar::currentChanged, this, [this](int i) { tabs.Select(i); });
    return sheet;
  }
  void Follow(Change what) override {
    const QSignalBlocker quiet(sheet->bar);
    if (what == Change::List) {
      while (sheet->bar->count() > tabs.Count())
        sheet->bar->removeTab(sheet->bar->count() - 1);
      while (sheet->bar->count() < tabs.Count())
        sheet->bar->addTab(QString());
      for (int i = 0; i < tabs.Count(); ++i)
        sheet->bar->setTabText(i, Q(tabs.Tabs(i).Caption));
    }
    if (what == Change::List || what == Change::Selection)
      sheet->bar->setCurrentIndex(tabs.Selected());
  }
  void FollowAll() override { Follow(Change::List); }
  TabStrip& tabs;
  TabSheet* sheet = nullptr;
};

// A row of large buttons, to be hit by a finger in a moving vehicle: picture above caption.
class BarWidget : public QWidget {
public:
  BarWidget(ToolBar& model, PictureStore& store, QWidget* parent) : QWidget(parent), bar(model), pictures(store) {
    setMouseTracking(true);
  }

protected:
  bool event(QEvent* e) override {
    if (e->type() == QEvent::ToolTip) {
      const int i = At(static_cast<QHelpEvent*>(e)->pos());
      QToolTip::showText(static_cast<QHelpEvent*>(e)->globalPos(), i < 0 ? QString() : Q(bar.Buttons(i).ToolTip), this);
      return true;
    }
    if (e->type() == QEvent::Leave)
      SetHover(-1);
    return QWidget::event(e);
  }
  void paintEvent(QPaintEvent*) override {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const theme::Colours& colours = theme::In(*this);
    p.fillRect(rect(), QColor(colours.Desk));
    p.setPen(QColor(colours.Line));
    p.drawLine(rect().bottomLeft(), rect().bottomRight());
    for (int i = 0; i < bar.Count(); ++i)
      PaintButton(p, i);
  }
  void mouseMoveEvent(QMouseEvent* e) override { SetHover(At(e->position().toPoint())); }
  void mousePressEvent(QMouseEvent* e) override {
    pressed = e->button() == Qt::LeftButton ? At(e->position().toPoint()) : -1;
    update();
  }
  void mouseReleaseEvent(QMouseEvent* e) override {
    const int hit = std::exchange(pressed, -1);
    update();
    if (hit >= 0 && hit == At(e->position().toPoint()))
      bar.ClickButton(std::string(bar.Buttons(hit).Key));
  }

private:
  int ButtonWidth() const {
    int widest = height() + 24;
    for (int i = 0; i < bar.Count(); ++i)
      widest = std::max(widest, fontMetrics().horizontalAdvance(Q(bar.Buttons(i).Caption)) + 20);
    return widest;
  }
  QRect Place(int i) const {
    const int w = ButtonWidth();
    return QRect(6 + i * (w + 6), 4, w, height() - 9);
  }
  int At(QPoint point) const {
    for (int i = 0; i < bar.Count(); ++i)
      if (Place(i).contains(point) && bar.Buttons(i).Enabled)
        return i;
    return -1;
  }
  void SetHover(int i) {
    if (std::exchange(hover, i) != i)
      update();
  }
  void PaintButton(QPainter& p, int i) {
    const ToolBar::Button& b = bar.Buttons(i);
    const QRect place = Place(i);
    const theme::Colours& colours = theme::In(*this);
    const bool down = pressed == i && hover == i;
    p.setPen(QPen(QColor(!b.Enabled ? colours.Line : hover == i ? colours.Accent : colours.FaintInk), 1));
    p.setBrush(b.Enabled ? QColor(down ? colours.AccentSoft : colours.Paper) : QColor(Qt::transparent));
    p.drawRoundedRect(QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5), 7, 7);
    p.setOpacity(b.Enabled ? 1.0 : 0.3);
    const int words = b.Caption.empty() ? 0 : fontMetrics().height();
    const int side = std::min(place.height() - words - 8, 40);
    const QPixmap drawn = pictures.Scaled(b.Picture.empty() ? b.Key : b.Picture, side, devicePixelRatioF());
    const QSizeF size = drawn.deviceIndependentSize();
    theme::DrawPicture(
        p, QPointF(place.center().x() - size.width() / 2 + 0.5, place.top() + 4 + (side - size.height()) / 2), drawn,
        colours);
    p.setOpacity(1.0);
    p.setPen(QColor(b.Enabled ? colours.Ink : colours.FaintInk));
    p.drawText(place.adjusted(0, 0, 0, -3), Qt::AlignHCenter | Qt::AlignBottom, Q(b.Caption));
  }
  ToolBar& bar;
  PictureStore& pictures;
  int hover = -1, pressed = -1;
};

class BarBinding : public PaintedBinding<ToolBar, BarWidget> {
public:
  using PaintedBinding::PaintedBinding;

private:
  // Always along the upper edge, as wide as the form.
  QRect Place() const override { return {0, 0, Pixels(place.Model().Width), Pixels(control.Height)}; }
};

class StatusBinding : public Binding {
public:
  StatusBinding(StatusBar& c, BindingPlace& p) : Binding(c, p), status(c) {}

private:
  QWidget* Make(QWidget* parent) override {
    line = new QLabel(parent);
    line->setTextFormat(Qt::PlainText);
    line->setContentsMargins(8, 0, 8, 0);
    return line;
  }
  // Always along the lower edge.
  QRect Place() const override {
    const Form& form = place.Model();
    return {0, Pixels(form.Height - control.Height), Pixels(form.Width), Pixels(control.Height)};
  }
  void Follow(Change what) override {
    if (what == Change::Text)
      line->setText(Q(status.SimpleText()));
  }
  void FollowAll() override { Follow(Change::Text); }
  StatusBar& status;
  QLabel* line = nullptr;
};

class MenuBinding : public Binding {
public:
  MenuBinding(Menu& c, BindingPlace& p) : Binding(c, p), menu(c) {}

  // An entry becomes a menu when its first child is bound.
  QMenu* Children() {
    if (!children && action) {
      children = new QMenu(place.MenuBar());
      action->setMenu(children);
      connect(children, &QMenu::aboutToShow, this, [this] { menu.Click(); });
    }
    return children;
  }
  void WindowMade() override {
    QWidget* holder = place.MenuBar();
    if (auto* parent = menu.Parent ? static_cast<MenuBinding*>(place.BindingOf(*menu.Parent)) : nullptr)
      holder = parent->Children();
    action = new QAction(holder);
    holder->addAction(action);
    connect(action, &QAction::triggered, this, [this] {
      menu.Click();
      FollowAction();
    });
    FollowAction();
  }

private:
  QWidget* Make(QWidget*) override { return nullptr; }
  void ControlChanged(Control&, Change) override {
    if (action)
      FollowAction();
  }
  void FollowAction() {
    const bool line = menu.Caption() == "-";
    action->setSeparator(line);
    action->setText(line ? QString()
                         : Q(menu.Shortcut.empty() ? menu.Caption() : menu.Caption() + '\t' + menu.Shortcut));
    action->setEnabled(menu.Enabled());
    action->setVisible(menu.Visible());
    action->setCheckable(menu.Checked());
    action->setChecked(menu.Checked());
  }
  void Follow(Change) override {}
  void FollowAll() override {}
  Menu& menu;
  QAction* action = nullptr;
  QMenu* children = nullptr;
};

// The handler may switch its timer off and on again, as the tick does; the toolkit's timer is set only from what
// results, so that the interval stays even. A timer does not fire inside its own handler, even when that pumps.
class TimerBinding : public Binding {
public:
  TimerBinding(Timer& c, BindingPlace& p) : Binding(c, p), timer(c) {
    beat.setTimerType(Qt::PreciseTimer);
    connect(&beat, &QTimer::timeout, this, [this] { Fire(); });
    FollowTimer();
  }
  void Detach() override {
    beat.stop();
    Binding::Detach();
  }

private:
  QWidget* Make(QWidget*) override { return nullptr; }
  void ControlChanged(Control&, Change what) override {
    if (what == Change::Interval && !firing)
      FollowTimer();
  }
  void Fire() {
    firing = true;
    timer.Fire();
    firing = false;
    if (control.Listener() == this)
      FollowTimer();
  }
  void FollowTimer() {
    const bool wanted = timer.Running() && timer.Interval() > 0;
    if (!wanted)
      beat.stop();
    else if (!beat.isActive() || beat.interval() != timer.Interval())
      beat.start(timer.Interval());
  }
  void Follow(Change) override {}
  void FollowAll() override {}
  Timer& timer;
  QTimer beat;
  bool firing = false;
};

class ImageListBinding : public Binding {
public:
  ImageListBinding(ImageList& c, BindingPlace& p) : Binding(c, p), list(c) { place.Pictures().Use(list); }
  void Detach() override {
    place.Pictures().Forget(list);
    Binding::Detach();
  }

private:
  QWidget* Make(QWidget*) override { return nullptr; }
  void Follow(Change) override {}
  void FollowAll() override {}
  ImageList& list;
};

} // namespace

std::unique_ptr<Binding> Bind(TabStrip& c, BindingPlace& p) {
  return std::make_unique<TabBinding>(c, p);
}
std::unique_ptr<Binding> Bind(ToolBar& c, BindingPlace& p) {
  return std::make_unique<BarBinding>(c, p);
}
std::unique_ptr<Binding> Bind(StatusBar& c, BindingPlace& p) {
  return std::make_unique<StatusBinding>(c, p);
}
std::unique_ptr<Binding> Bind(Menu& c, BindingPlace& p) {
  return std::make_unique<MenuBinding>(c, p);
}
std::unique_ptr<Binding> Bind(Timer& c, BindingPlace& p) {
  return std::make_unique<TimerBinding>(c, p);
}
std::unique_ptr<Binding> Bind(ImageList& c, BindingPlace& p) {
  return std::make_unique<ImageListBinding>(c, p);
}

} // namespace trekor
