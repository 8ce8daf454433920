// Bindings of combo and list boxes, frames, pictures and grids.
#include "views/Binding.h"
#include "views/GridView.h"
#include "views/KeyGridView.h"
#include "views/Page.h"
#include "views/PaintedBinding.h"
#include "views/Theme.h"

#include <QComboBox>
#include <QListWidget>
#include <QMouseEvent>
#include <QPainter>
#include <QSignalBlocker>

#include <algorithm>
#include <functional>
#include <utility>

namespace trekor {

namespace {

// Entries are only ever added at the end, or all taken away.
template <class Box, class Model> void TakeEntries(Box& box, const Model& list) {
  if (box.count() > list.ListCount() || list.ListCount() == 0)
    box.clear();
  for (int i = box.count(); i < list.ListCount(); ++i)
    box.addItem(Q(list.List(i)));
}

class ComboBinding : public Binding {
public:
  ComboBinding(ComboBox& c, BindingPlace& p) : Binding(c, p), combo(c) {}

private:
  QWidget* Make(QWidget* parent) override {
    box = new QComboBox(parent);
    box->setEditable(!combo.DropDownList);
    box->setInsertPolicy(QComboBox::NoInsert);
    connect(box, &QComboBox::activated, this, [this](int i) { combo.Select(i); });
    connect(box, &QComboBox::editTextChanged, this, [this](const QString& t) { combo.SetText(t.toStdString()); });
    return box;
  }
  void Follow(Change what) override {
    const QSignalBlocker quiet(box);
    if (what == Change::List)
      TakeEntries(*box, combo);
    if (what == Change::List || what == Change::Selection)
      box->setCurrentIndex(combo.ListIndex());
    if (what == Change::Text && box->isEditable() && box->currentText() != Q(combo.Text()))
      box->setEditText(Q(combo.Text()));
  }
  void FollowAll() override {
    Follow(Change::List);
    Follow(Change::Text);
  }
  ComboBox& combo;
  QComboBox* box = nullptr;
};

// Reports each choice by mouse and keys, also of the entry that is chosen already, and chooses nothing by itself: the
// toolkit's list would take its first entry with the focus.
class ListWidget : public QListWidget {
public:
  using QListWidget::QListWidget;
  std::function<void(int)> chosen;
  std::vector<int> Rows() const { // in the order of the list
    std::vector<int> rows;
    for (const QModelIndex& index : selectedIndexes())
      rows.push_back(index.row());
    std::sort(rows.begin(), rows.end());
    return rows;
  }

protected:
  void focusInEvent(QFocusEvent*) override { viewport()->update(); }
  void mousePressEvent(QMouseEvent* e) override {
    pressed = e->button() == Qt::LeftButton;
    QListWidget::mousePressEvent(e);
  }
  void mouseReleaseEvent(QMouseEvent* e) override {
    QListWidget::mouseReleaseEvent(e);
    const QListWidgetItem* entry = itemAt(e->position().toPoint());
    if (std::exchange(pressed, false) && entry) // not the second release of a double click
      chosen(row(entry));
  }
  void keyPressEvent(QKeyEvent* e) override {
    const int before = currentRow();
    const std::vector<int> rows = Rows();
    QListWidget::keyPressEvent(e);
    if (currentRow() != before || Rows() != rows)
      chosen(currentRow());
  }

private:
  bool pressed = false;
};

class ListBinding : public Binding {
public:
  ListBinding(ListBox& c, BindingPlace& p) : Binding(c, p), list(c) {}

private:
  QWidget* Make(QWidget* parent) override {
    box = new ListWidget(parent);
    if (list.MultiSelect)
      box->setSelectionMode(QAbstractItemView::ExtendedSelection);
    box->chosen = [this](int i) {
      if (list.MultiSelect)
        list.SelectSeveral(box->Rows(), i);
      else
        list.Select(i);
    };
    connect(box, &QListWidget::itemDoubleClicked, this, [this](QListWidgetItem* i) { list.DblClick(box->row(i)); });
    return box;
  }
  void Follow(Change what) override {
    const QSignalBlocker quiet(box);
    if (what == Change::List)
      TakeEntries(*box, list);
    if (what != Change::List && what != Change::Selection)
      return;
    box->setCurrentRow(list.ListIndex(), QItemSelectionModel::NoUpdate);
    for (int i = 0; i < box->count(); ++i)
      if (QListWidgetItem* entry = box->item(i); entry->isSelected() != list.Selected(i))
        entry->setSelected(list.Selected(i));
  }
  void FollowAll() override { Follow(Change::List); }
  ListBox& list;
  ListWidget* box = nullptr;
};

// A titled box around its controls; without a title nothing but their place.
class FrameWidget : public QWidget {
public:
  explicit FrameWidget(QWidget* parent) : QWidget(parent) {}
  QString title;

protected:
  void paintEvent(QPaintEvent*) override {
    if (title.isEmpty())
      return;
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const int lift = fontMetrics().height() / 2;
    const theme::Colours& colours = theme::In(*this);
    p.setPen(QColor(colours.Line));
    p.setBrush(QColor(colours.Band));
    p.drawRoundedRect(QRectF(rect()).adjusted(0.5, lift + 0.5, -0.5, -0.5), 6, 6);
    const QRect name(12, 0, fontMetrics().horizontalAdvance(title) + 10, 2 * lift);
    p.setPen(Qt::NoPen);
    p.drawRoundedRect(name, 4, 4);
    p.setPen(QColor(isEnabled() ? colours.Ink : colours.FaintInk));
    p.drawText(name, Qt::AlignCenter, title);
  }
};

class FrameBinding : public Binding {
public:
  FrameBinding(Frame& c, BindingPlace& p) : Binding(c, p), frame(c) {}
  QWidget* Inside() override {
    Ensure();
    return shown;
  }

private:
  QWidget* Make(QWidget* parent) override {
    if (!frame.Caption().empty())
      return shown = new FrameWidget(parent);
    auto* page = new Page(parent);
    page->Hold(shown = new FrameWidget(page));
    return page;
  }
  void Follow(Change what) override {
    if (what != Change::Caption)
      return;
    shown->title = Q(frame.Caption()).remove('&');
    shown->update();
  }
  void FollowAll() override { Follow(Change::Caption); }
  Frame& frame;
  FrameWidget* shown = nullptr;
};

// A picture; one that does something looks like a button.
class PictureWidget : public QWidget {
public:
  PictureWidget(Image& model, PictureStore& store, QWidget* parent) : QWidget(parent), image(model), pictures(store) {}

protected:
  void paintEvent(QPaintEvent*) override {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const theme::Colours& colours = theme::In(*this);
    int side = std::min(width(), height());
    if (image.OnClick) {
      p.setPen(QColor(colours.Line));
      p.setBrush(QColor(isEnabled() ? colours.Paper : colours.Desk));
      p.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 6, 6);
      side -= 8;
    }
    const QPixmap drawn = pictures.Scaled(image.Picture(), side, devicePixelRatioF());
    p.setOpacity(isEnabled() ? 1.0 : 0.35);
    const QSizeF size = drawn.deviceIndependentSize();
    theme::DrawPicture(p, QPointF((width() - size.width()) / 2, (height() - size.height()) / 2), drawn, colours);
  }
  void mousePressEvent(QMouseEvent* e) override {
    if (e->button() == Qt::LeftButton)
      image.Click();
  }

private:
  Image& image;
  PictureStore& pictures;
};

// The two key pictures are grids that are drawn as keyboards.
bool IsKeyGrid(const Grid& grid) {
  return grid.Name().starts_with("fxgKey");
}

class GridBinding : public Binding {
public:
  GridBinding(Grid& c, BindingPlace& p) : Binding(c, p), grid(c) {}

private:
  template <class View> QWidget* MakeView(QWidget* parent) {
    auto* view = new View(grid, place.Pictures(), parent);
    shown = view;
    return view;
  }
  QWidget* Make(QWidget* parent) override {
    return IsKeyGrid(grid) ? MakeView<KeyGridView>(parent) : MakeView<GridView>(parent);
  }
  void Follow(Change what) override {
    if (what == Change::Cells)
      shown->GridChanged();
  }
  void FollowAll() override {}
  Grid& grid;
  GridWidget* shown = nullptr;
};

} // namespace

std::unique_ptr<Binding> Bind(ComboBox& c, BindingPlace& p) {
  return std::make_unique<ComboBinding>(c, p);
}
std::unique_ptr<Binding> Bind(ListBox& c, BindingPlace& p) {
  return std::make_unique<ListBinding>(c, p);
}
std::unique_ptr<Binding> Bind(Frame& c, BindingPlace& p) {
  return std::make_unique<FrameBinding>(c, p);
}
std::unique_ptr<Binding> Bind(Image& c, BindingPlace& p) {
  return std::make_unique<PaintedBinding<Image, PictureWidget>>(c, p);
}
std::unique_ptr<Binding> Bind(Grid& c, BindingPlace& p) {
  return std::make_unique<GridBinding>(c, p);
}

} // namespace trekor
