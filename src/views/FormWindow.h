// The window of a form; it passes on what happens to it.
#pragma once

#include <QWidget>

class QLabel;
class QMenuBar;

namespace trekor {

class FormView;

class FormWindow : public QWidget {
public:
  FormWindow(FormView& view, Qt::WindowFlags flags);
  FormView* View() const { return view; }
  void Forsake() { view = nullptr; }
  // What the controls stand on.
  QWidget* Sheet() const { return sheet; }
  QMenuBar* MenuBar(); // makes it
  int MenuHeight() const;
  // The line below the controls; the empty text takes it away.
  void SetRemark(const QString& text);
  int RemarkHeight(int width) const;
  // Also while it is hidden, when nothing tells of a new size.
  void LayOut();

protected:
  bool event(QEvent* e) override;
  void closeEvent(QCloseEvent* e) override;
  void resizeEvent(QResizeEvent* e) override;
  void moveEvent(QMoveEvent* e) override;
  void mouseDoubleClickEvent(QMouseEvent* e) override;

private:
  FormView* view;
  QWidget* sheet;
  QWidget* inside; // the sheet, or the page that it can be scrolled in
  QMenuBar* menus = nullptr;
  QLabel* remark = nullptr;
  bool painted = false;
};

} // namespace trekor
