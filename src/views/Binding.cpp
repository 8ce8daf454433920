#include "views/Binding.h"

#include "views/Theme.h"

namespace trekor {

Binding::Binding(Control& c, BindingPlace& p) : control(c), place(p) {
  control.SetListener(this);
}

Binding::~Binding() = default;

void Binding::Detach() {
  control.SetListener(nullptr);
}

QRect Binding::Place() const {
  return place.PlaceOf(control);
}

QWidget* Binding::Ensure() {
  if (widget)
    return widget;
  widget = Make(place.ParentOf(control));
  if (!widget)
    return nullptr;
  for (const Change what : {Change::Geometry, Change::Font, Change::ToolTip, Change::Enabled})
    Common(what);
  FollowAll();
  widget->setVisible(control.Visible());
  return widget;
}

void Binding::Common(Change what) {
  switch (what) {
  case Change::Geometry:
    return widget->setGeometry(Place());
  case Change::Visible:
    return widget->setVisible(control.Visible());
  case Change::Enabled:
    return widget->setEnabled(control.Enabled());
  case Change::ToolTip:
    return widget->setToolTip(Q(control.ToolTipText()));
  case Change::Font:
    return widget->setFont(place.FontOf(control));
  case Change::Focus:
    return widget->setFocus();
  default:
    return Follow(what);
  }
}

void Binding::ControlChanged(Control&, Change what) {
  if (widget)
    Common(what);
  else if (what == Change::Visible && control.Visible() && place.ParentOf(control))
    Ensure();
}

std::unique_ptr<Binding> BindAny(Control& c, BindingPlace& p) {
  switch (c.TypeOf()) {
  case Kind::Label:
    return Bind(static_cast<Label&>(c), p);
  case Kind::TextBox:
  case Kind::RichTextBox:
    return Bind(static_cast<TextBox&>(c), p);
  case Kind::CheckBox:
    return Bind(static_cast<CheckBox&>(c), p);
  case Kind::OptionButton:
    return Bind(static_cast<OptionButton&>(c), p);
  case Kind::ComboBox:
  case Kind::DriveListBox:
    return Bind(static_cast<ComboBox&>(c), p);
  case Kind::ListBox:
  case Kind::DirListBox:
  case Kind::FileListBox:
    return Bind(static_cast<ListBox&>(c), p);
  case Kind::CommandButton:
    return Bind(static_cast<CommandButton&>(c), p);
  case Kind::Frame:
    return Bind(static_cast<Frame&>(c), p);
  case Kind::Image:
    return Bind(static_cast<Image&>(c), p);
  case Kind::FlexGrid:
    return Bind(static_cast<Grid&>(c), p);
  case Kind::TabStrip:
    return Bind(static_cast<TabStrip&>(c), p);
  case Kind::ToolBar:
    return Bind(static_cast<ToolBar&>(c), p);
  case Kind::StatusBar:
    return Bind(static_cast<StatusBar&>(c), p);
  case Kind::Menu:
    return Bind(static_cast<Menu&>(c), p);
  case Kind::Timer:
    return Bind(static_cast<Timer&>(c), p);
  case Kind::ImageList:
    return Bind(static_cast<ImageList&>(c), p);
  case Kind::Form:
  case Kind::TreeView:
    break;
  }
  return nullptr;
}

} // namespace trekor
