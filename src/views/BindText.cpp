// Bindings of labels, text boxes and buttons.
#include "views/Binding.h"
#include "views/Theme.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcutEvent>
#include <QSignalBlocker>

namespace trekor {

namespace {

// A widget that reports the operator's clicks.
template <class Base> class Clickable : public Base {
public:
  using Base::Base;
  std::function<void()> click, doubleClick;

protected:
  void mouseReleaseEvent(QMouseEvent* e) override {
    Base::mouseReleaseEvent(e);
    if (e->button() == Qt::LeftButton && Base::rect().contains(e->position().toPoint()) && click)
      click();
  }
  void mouseDoubleClickEvent(QMouseEvent* e) override {
    Base::mouseDoubleClickEvent(e);
    if (doubleClick)
      doubleClick();
  }
};

// A label has no shortcut, so the mark of its letter is left out.
QString WithoutMnemonic(const std::string& caption) {
  return Q(caption).remove('&');
}

class LabelBinding : public Binding {
public:
  LabelBinding(Label& c, BindingPlace& p) : Binding(c, p), label(c) {}

private:
  QWidget* Make(QWidget* parent) override {
    shown = new Clickable<QLabel>(parent);
    shown->setTextFormat(Qt::PlainText);
    shown->setWordWrap(true);
    shown->click = [this] { label.Click(); };
    shown->doubleClick = [this] {
      if (label.OnDblClick)
        label.OnDblClick();
    };
    return shown;
  }
  void Follow(Change what) override {
    if (what == Change::Caption)
      shown->setText(WithoutMnemonic(label.Caption()));
    if (what != Change::Colour)
      return;
    QPalette colours; // of nothing else, or the label would keep its colours of the day by night
    if (label.ForeColor() >= 0)
      colours.setColor(QPalette::WindowText,
                       theme::WordColour(static_cast<QRgb>(label.ForeColor()), theme::In(*shown->parentWidget())));
    shown->setPalette(colours);
  }
  void FollowAll() override {
    Follow(Change::Caption);
    Follow(Change::Colour);
  }
  Label& label;
  Clickable<QLabel>* shown = nullptr;
};

// The widget of a text box.
template <class Widget> Clickable<Widget>* MakeEdit(TextBox& box, QWidget* parent) {
  auto* edit = new Clickable<Widget>(parent);
  edit->click = [&box] { box.Click(); };
  edit->doubleClick = [&box] { box.DblClick(); };
  return edit;
}

class LineBinding : public Binding {
public:
  LineBinding(TextBox& c, BindingPlace& p) : Binding(c, p), box(c) {}

private:
  QWidget* Make(QWidget* parent) override {
    edit = MakeEdit<QLineEdit>(box, parent);
    connect(edit, &QLineEdit::textEdited, this, [this](const QString& t) { box.Type(t.toStdString()); });
    connect(edit, &QLineEdit::selectionChanged, this, [this] { ReadSelection(); });
    connect(edit, &QLineEdit::cursorPositionChanged, this, [this] { ReadSelection(); });
    return edit;
  }
  void ReadSelection() {
    box.SelLength = static_cast<int>(edit->selectedText().size());
    box.SelStart = box.SelLength > 0 ? edit->selectionStart() : edit->cursorPosition();
  }
  void Follow(Change what) override {
    const QSignalBlocker quiet(edit);
    if (what == Change::Text && edit->text() != Q(box.Text())) {
      edit->setText(Q(box.Text()));
      edit->setCursorPosition(box.SelStart);
    } else if (what == Change::Selection && box.SelLength > 0)
      edit->setSelection(box.SelStart, box.SelLength);
    else if (what == Change::Selection) {
      edit->deselect();
      edit->setCursorPosition(box.SelStart);
    }
  }
  void FollowAll() override {
    edit->setReadOnly(box.ReadOnly);
    Follow(Change::Text);
    Follow(Change::Selection);
  }
  TextBox& box;
  Clickable<QLineEdit>* edit = nullptr;
};

class PageBinding : public Binding {
public:
  PageBinding(TextBox& c, BindingPlace& p) : Binding(c, p), box(c) {}

private:
  QWidget* Make(QWidget* parent) override {
    edit = MakeEdit<QPlainTextEdit>(box, parent);
    edit->setTabChangesFocus(true);
    connect(edit, &QPlainTextEdit::textChanged, this, [this] { box.Type(edit->toPlainText().toStdString()); });
    return edit;
  }
  void Follow(Change what) override {
    const QSignalBlocker quiet(edit);
    if (what == Change::Text && edit->toPlainText() != Q(box.Text()))
      edit->setPlainText(Q(box.Text()));
    else if (what == Change::Selection && box.SelLength > 0)
      edit->selectAll();
    else if (what == Change::Selection)
      edit->moveCursor(QTextCursor::Start);
  }
  void FollowAll() override {
    edit->setReadOnly(box.ReadOnly);
    Follow(Change::Text);
  }
  TextBox& box;
  Clickable<QPlainTextEdit>* edit = nullptr;
};

void ShowValue(QCheckBox& button, const CheckBox& check) {
  button.setCheckState(check.Value() == 0 ? Qt::Unchecked : check.Value() == 1 ? Qt::Checked : Qt::PartiallyChecked);
}
void ShowValue(QRadioButton& button, const OptionButton& option) {
  button.setChecked(option.Value());
}

// A button whose letter with Alt clicks it at once. The toolkit waits a tenth of a second first, and an Enter or Esc in
// that would close the form without the click.
template <class Base> class AtOnce : public Base {
public:
  using Base::Base;

protected:
  bool event(QEvent* e) override {
    if (e->type() != QEvent::Shortcut || static_cast<QShortcutEvent*>(e)->isAmbiguous())
      return Base::event(e);
    Base::setFocus(Qt::ShortcutFocusReason);
    Base::click();
    return true;
  }
};

// A check box or an option.
template <class Sort, class Button> class ToggleBinding : public Binding {
public:
  ToggleBinding(Sort& c, BindingPlace& p) : Binding(c, p), model(c) {}

private:
  QWidget* Make(QWidget* parent) override {
    button = new AtOnce<Button>(parent);
    button->setAutoExclusive(false); // the model clears the others of its group
    connect(button, &Button::clicked, this, [this] {
      model.Click();
      Follow(Change::Value); // what the model made of it
    });
    return button;
  }
  void Follow(Change what) override {
    const QSignalBlocker quiet(button);
    if (what == Change::Caption)
      button->setText(Q(model.Caption()));
    if (what == Change::Value)
      ShowValue(*button, model);
  }
  void FollowAll() override {
    Follow(Change::Caption);
    Follow(Change::Value);
  }
  Sort& model;
  Button* button = nullptr;
};

class ButtonBinding : public Binding {
public:
  ButtonBinding(CommandButton& c, BindingPlace& p) : Binding(c, p), command(c) {}

private:
  QWidget* Make(QWidget* parent) override {
    button = new QPushButton(parent);
    connect(button, &QPushButton::clicked, this, [this] { command.Click(); });
    return button;
  }
  void Follow(Change what) override {
    if (what == Change::Caption)
      button->setText(Q(command.Caption()));
  }
  void FollowAll() override { Follow(Change::Caption); }
  CommandButton& command;
  QPushButton* button = nullptr;
};

} // namespace

std::unique_ptr<Binding> Bind(Label& c, BindingPlace& p) {
  return std::make_unique<LabelBinding>(c, p);
}

std::unique_ptr<Binding> Bind(TextBox& c, BindingPlace& p) {
  if (c.TypeOf() == Kind::RichTextBox)
    return std::make_unique<PageBinding>(c, p);
  return std::make_unique<LineBinding>(c, p);
}

std::unique_ptr<Binding> Bind(CheckBox& c, BindingPlace& p) {
  return std::make_unique<ToggleBinding<CheckBox, QCheckBox>>(c, p);
}
std::unique_ptr<Binding> Bind(OptionButton& c, BindingPlace& p) {
  return std::make_unique<ToggleBinding<OptionButton, QRadioButton>>(c, p);
}
std::unique_ptr<Binding> Bind(CommandButton& c, BindingPlace& p) {
  return std::make_unique<ButtonBinding>(c, p);
}

} // namespace trekor
