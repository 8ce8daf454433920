#include "views/FormView.h"

#include "values/KeyCodes.h"
#include "views/FormWindow.h"
#include "views/GridDrag.h"
#include "views/ModalPlace.h"
#include "views/Theme.h"
#include "views/Twips.h"

#include <QApplication>
#include <QMenuBar>
#include <QMessageBox>
#include <QScreen>
#include <QTimer>

#include <algorithm>

namespace trekor {

namespace {

constexpr int GridPixels = 16;
constexpr int HighBox = 36;
constexpr int TitleBar = 28;    // as high as window managers make it; how high is known only when the window is shown
constexpr int WidestFrame = 50; // title bar and border together

QMargins FrameOf(const QWidget& window) {
  const QRect outer = window.frameGeometry(), inner = window.geometry();
  return {inner.left() - outer.left(), inner.top() - outer.top(), outer.right() - inner.right(),
          outer.bottom() - inner.bottom()};
}

Qt::WindowFlags FlagsOf(const Form& form, bool modal) {
  if (form.ToolWindow)
    return Qt::Tool;
  return modal ? Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint : Qt::Window;
}

} // namespace

FormView::FormView(Form& f, PictureStore& p) : form(f), pictures(p) {
  form.SetListener(this);
  for (Control* c : form.Controls())
    if (auto binding = BindAny(*c, *this))
      bindings.push_back(std::move(binding));
  connect(qApp, &QApplication::focusChanged, this, &FormView::FocusMoved);
}

FormView::~FormView() {
  if (!detached)
    Detach();
}

void FormView::Detach() {
  detached = true;
  Hide();
  form.SetListener(nullptr);
  for (const auto& b : bindings)
    b->Detach();
  if (!window)
    return;
  window->Forsake();
  window->deleteLater(); // one of its handlers may be on the stack
}

Binding* FormView::BindingOf(const Control& control) {
  const auto place =
      std::find_if(bindings.begin(), bindings.end(), [&](const auto& b) { return &b->Model() == &control; });
  return place == bindings.end() ? nullptr : place->get();
}

// ---- the window and its widgets

QWidget* FormView::Window() {
  if (!window && !detached)
    MakeWindow();
  return window;
}

void FormView::MakeWindow() {
  const auto has = [&](Kind kind) {
    return std::any_of(bindings.begin(), bindings.end(), [&](const auto& b) { return b->Model().TypeOf() == kind; });
  };
  window = new FormWindow(*this, FlagsOf(form, !has(Kind::Menu)));
  window->setWindowTitle(Q(form.Caption()));
  window->setAttribute(Qt::WA_ShowWithoutActivating, form.ToolWindow); // the keyboard stays with the main form
  if (form.BackColor >= 0) {
    QPalette colours = window->palette();
    colours.setColor(QPalette::Window, QColor(static_cast<QRgb>(form.BackColor)));
    window->setPalette(colours);
  }
  if (has(Kind::Menu))
    window->MenuBar();
  for (const auto& b : bindings)
    b->WindowMade();
  if (!form.Remark().empty())
    window->SetRemark(Q(form.Remark()));
  window->setMinimumSize(Pixels(form.MinWidth), Pixels(form.MinHeight));
  FollowGeometry();
  EnsureWidgets();
}

// Containers come before what they hold, whatever their order in the list.
void FormView::EnsureWidgets() {
  for (const auto& b : bindings)
    if (b->Model().Visible())
      b->Ensure();
}

QWidget* FormView::ParentOf(const Control& control) {
  if (!window)
    return nullptr;
  Binding* container = control.Container ? BindingOf(*control.Container) : nullptr;
  return container ? container->Inside() : window->Sheet();
}

QMenuBar* FormView::MenuBar() {
  return window ? window->MenuBar() : nullptr;
}

// Values are read from arm's length, so a box much higher than a line of text has a font to match.
QFont FormView::FontOf(const Control& control) {
  QFont base = QApplication::font();
  const bool sized = control.FontOf().Size > 0 || form.FontOf.Size > 0;
  if (control.TypeOf() == Kind::FlexGrid)
    base.setPixelSize(GridPixels);
  else if (const int height = PlaceOf(control).height();
           !sized && control.TypeOf() == Kind::TextBox && height > HighBox)
    base.setPixelSize(height / 2);
  return theme::Of(control.FontOf(), form.FontOf, base);
}

QRect FormView::PlaceOf(const Control& control) const {
  const QRect own = PixelRect(control);
  if (!aside || form.Width <= 0 || form.Height <= 0)
    return own;
  const QSize now = window->Sheet()->size(), whole(Pixels(form.Width), Pixels(form.Height));
  const auto x = [&](int value) { return value * now.width() / whole.width(); };
  const auto y = [&](int value) { return value * now.height() / whole.height(); };
  return {x(own.left()), y(own.top()), x(own.width()), y(own.height())};
}

QRect FormView::OwnPlace() const {
  const int width = std::max(1, Pixels(form.Width));
  return {Pixels(form.Left), Pixels(form.Top), width,
          std::max(1, Pixels(form.Height)) + window->MenuHeight() + window->RemarkHeight(width)};
}

// The frame that the window system will put around it is taken to be that of the window above which it stands.
void FormView::StandAside() {
  auto* binding = form.InSight ? dynamic_cast<Binding*>(form.InSight->Listener()) : nullptr;
  const auto* grid = binding ? dynamic_cast<GridWidget*>(binding->Widget()) : nullptr;
  if (!grid)
    return;
  const QWidget* over = binding->Widget()->window();
  const QMargins frame = FrameOf(*over);
  const QRect own = OwnPlace(), framed(own.topLeft(), own.marginsAdded(frame).size());
  const QRect place =
      PlaceInClear(framed, {over->screen()->availableGeometry(), over->frameGeometry(), grid->HeadOnScreen()});
  aside = place != framed;
  following = true;
  window->setGeometry(place.marginsRemoved(frame)); // move() is off by a title bar when it is shown again
  window->LayOut();
  following = false;
  for (const auto& b : bindings)
    for (const Change what : {Change::Geometry, Change::Font})
      b->ControlChanged(b->Model(), what);
}

// The window below has moved; what it shows follows a little later.
bool FormView::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Move || event->type() == QEvent::Resize)
    QTimer::singleShot(0, this, [this] {
      if (modal)
        StandAside();
    });
  return QObject::eventFilter(watched, event);
}

void FormView::FollowGeometry() {
  following = true;
  QRect screen = window->screen()->availableGeometry();
  screen.setBottom(screen.bottom() - TitleBar);
  const QRect wanted = OwnPlace();
  const QRect place = OntoScreen(wanted, screen);
  window->resize(place.size());
  window->move(place.topLeft());
  if (form.WindowState() == WindowStates::Normal)
    window->setWindowState(window->windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized));
  else
    window->setWindowState(form.WindowState() == WindowStates::Minimised ? Qt::WindowMinimized : Qt::WindowMaximized);
  following = false;
  if (place.size() != wanted.size() && !form.InSight) // the sheet follows only when the window is shown
    WindowResized(place.size().shrunkBy({0, window->MenuHeight(), 0, 0}));
}

void FormView::FormChanged(Form&, Change what) {
  if (!window)
    return;
  if (what == Change::Caption)
    window->setWindowTitle(Q(form.Caption()));
  else if (what == Change::Text)
    window->SetRemark(Q(form.Remark()));
  else if (what == Change::Geometry)
    FollowGeometry();
  else if (what == Change::Font)
    for (const auto& b : bindings)
      b->ControlChanged(b->Model(), Change::Font);
}

void FormView::ControlAdded(Form&, Control& control) {
  auto binding = BindAny(control, *this);
  if (!binding)
    return;
  bindings.push_back(std::move(binding));
  if (!window)
    return;
  bindings.back()->WindowMade();
  if (control.Visible())
    bindings.back()->Ensure();
}

void FormView::FormRefresh(Form&) {
  if (window && window->isVisible())
    window->repaint();
}

// ---- showing

void FormView::Show(QWidget* above) {
  QWidget* w = Window();
  if (!w)
    return;
  if (form.ToolWindow && above && above != w && !w->parentWidget())
    w->setParent(above, w->windowFlags()); // floats above the main form
  if (above != w)
    opener = above;
  form.Shown = true;
  w->show();
  if (!form.ToolWindow)
    w->activateWindow();
}

FormView* FormView::ViewBelow() const {
  const auto* below = dynamic_cast<FormWindow*>(opener.data());
  return below ? below->View() : nullptr;
}

// A question above a modal form: that may be hidden in the same turn, and must go from the screen first. Some window
// managers would give it the keyboard when the question goes, find it gone, and give the keyboard to nobody. When it is
// hidden it takes the question along: while that stands, the toolkit drops every key of the windows below.
void FormView::HideLater(FormView& below) {
  below.leavingAbove = this;
  QTimer::singleShot(0, this, [this] {
    if (LeaveScreen() && opener)
      opener->activateWindow();
  });
}

// False when it has left already, or is shown again.
bool FormView::LeaveScreen() {
  if (form.Shown || !window || !window->isVisible())
    return false;
  window->hide();
  return true;
}

void FormView::Hide() {
  form.Shown = false;
  form.ActiveControl = nullptr; // the next showing gives its control the focus anew
  const QWidget* front = QApplication::activeWindow();
  const bool active = window && front && (front == window || front->parentWidget() == window);
  // Not every window manager gives the keyboard back to the opener, and without one nothing does. It is done before the
  // window is hidden: the manager would choose a window itself, and a key typed meanwhile would be lost. A modal window
  // keeps the keyboard from the opener until it is hidden.
  const bool handOver = active && opener;
  FormView* below = ViewBelow();
  const bool later = handOver && modal && below && below->modal;
  if (handOver && !modal)
    opener->activateWindow();
  if (window) {
    for (QMessageBox* box : window->findChildren<QMessageBox*>(Qt::FindDirectChildrenOnly))
      box->reject(); // its message boxes too, or they would keep the keys of a run
    if (!later)
      window->hide();
  }
  if (leavingAbove)
    leavingAbove->LeaveScreen();
  if (later)
    HideLater(*below);
  else if (handOver && modal)
    opener->activateWindow();
  if (modal)
    modal->quit();
}

void FormView::ShowModal(QWidget* above) {
  if (modal || !Window())
    return;
  QEventLoop loop;
  modal = &loop;
  window->setWindowModality(Qt::ApplicationModal);
  if (above && above != window)
    window->setParent(above, window->windowFlags());
  const QPointer<FormView> alive = this;
  StandAside();
  if (above)
    above->installEventFilter(this);
  Show(above);
  loop.exec();
  if (!alive)
    return;
  if (opener)
    opener->removeEventFilter(this);
  modal = nullptr;
  if (form.Shown) // the program ends
    Hide();
}

// ---- events of the window

void FormView::WindowResized(QSize inside) {
  if (following || detached || aside)
    return;
  if (!(window->windowState() & Qt::WindowMinimized)) {
    form.Width = Twips(inside.width());
    form.Height = Twips(inside.height());
  }
  for (const auto& b : bindings) // bars span the form
    if (b->Widget() && (b->Model().TypeOf() == Kind::ToolBar || b->Model().TypeOf() == Kind::StatusBar))
      b->ControlChanged(b->Model(), Change::Geometry);
  if (form.OnResize)
    form.OnResize();
}

void FormView::WindowMoved(QPoint corner) {
  if (following || detached || aside || form.WindowState() != WindowStates::Normal)
    return;
  // The window system tells first of the place without the frame: a window that stands aside in turns would creep.
  if (form.InSight && (corner - OwnPlace().topLeft()).manhattanLength() < WidestFrame)
    return;
  form.Left = Twips(corner.x());
  form.Top = Twips(corner.y());
}

void FormView::WindowStateChanged(Qt::WindowStates state) {
  if (following || detached)
    return;
  following = true;
  form.SetWindowState(state & Qt::WindowMinimized   ? WindowStates::Minimised
                      : state & Qt::WindowMaximized ? WindowStates::Maximised
                                                    : WindowStates::Normal);
  following = false;
}

void FormView::WindowActivated() {
  if (!detached && form.OnActivate)
    form.OnActivate();
}

void FormView::DoubleClicked() {
  if (!detached && form.OnDblClick)
    form.OnDblClick();
}

void FormView::CloseAsked() {
  const QPointer<FormView> alive = this;
  if (form.OnQueryUnload && !form.OnQueryUnload())
    return;
  if (alive && !detached && form.OnUnload)
    form.OnUnload();
  if (alive && !detached)
    Hide(); // a form without an OnUnload
}

// ---- focus and keys

Binding* FormView::Holder(QWidget* w) const {
  for (; w && w != window; w = w->parentWidget())
    for (const auto& b : bindings)
      if (b->Widget() == w)
        return b.get();
  return nullptr;
}

// Only a move within the window counts: a box keeps the focus while another window has the keyboard.
void FormView::FocusMoved(QWidget*, QWidget* to) {
  if (detached || !window || !to || to->window() != window)
    return;
  const Binding* now = Holder(to);
  if (now)
    form.FocusMoved(&now->Model());
}

QWidget* FormView::Focused() {
  return window ? window->focusWidget() : nullptr;
}

bool FormView::PressButton(bool CommandButton::*which) {
  for (Control* c : form.Controls())
    if (c->TypeOf() == Kind::CommandButton) {
      auto& button = static_cast<CommandButton&>(*c);
      if (!(button.*which) || !button.Enabled() || !button.Visible())
        continue;
      button.Click();
      return true;
    }
  return false;
}

bool FormView::OfferKey(int keyCode, int shift) {
  const QPointer<FormView> alive = this;
  if (detached || (form.OnKeyDown && form.OnKeyDown(keyCode, shift)) || !alive || detached)
    return true;
  Control* focused = form.ActiveControl;
  const Kind kind = focused ? focused->TypeOf() : Kind::Form;
  const bool list = dynamic_cast<ListBox*>(focused) != nullptr;
  if ((kind == Kind::TextBox || kind == Kind::RichTextBox) && static_cast<TextBox*>(focused)->Press(keyCode, shift))
    return true;
  if (list && static_cast<ListBox*>(focused)->Press(keyCode, shift))
    return true;
  if (!alive || detached)
    return true;
  if (keyCode == keys::Enter && kind == Kind::CommandButton) {
    static_cast<CommandButton*>(focused)->Click();
    return true;
  }
  return (keyCode == keys::Enter && PressButton(&CommandButton::Default)) ||
         (keyCode == keys::Esc && PressButton(&CommandButton::Cancel));
}

char32_t FormView::OfferCharacter(char32_t typed) {
  if (detached || (form.OnKeyPress && form.OnKeyPress(typed)))
    return 0;
  Control* focused = form.ActiveControl;
  if (!focused || focused->TypeOf() != Kind::TextBox)
    return typed;
  auto& box = static_cast<TextBox&>(*focused);
  return box.OnKeyPress ? box.OnKeyPress(typed) : typed;
}

} // namespace trekor
