// A place for controls that can be scrolled where it is too small for them, as on a small screen.
#pragma once

#include <QScrollArea>

namespace trekor {

class Page : public QScrollArea {
public:
  explicit Page(QWidget* parent);
  // The widget that the controls stand on; it becomes the page's.
  void Hold(QWidget* sheet);

protected:
  void showEvent(QShowEvent* e) override;
  void resizeEvent(QResizeEvent* e) override;

private:
  void MakeRoom();
};

} // namespace trekor
