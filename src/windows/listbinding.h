#pragma once

#include <functional>

#include "windows/display.h"
#include "windows/rowsview.h"

namespace tamo {

// A list and its rows on the screen. A drop list lies over everything else in its window, directly
// under its field, as wide as the field and at most twelve rows high.
class ListBinding : public Binding {
 public:
  ListBinding(Display& display, OrderedList& list, RowsView& view);

  // Makes a drop list of it, over `window`, under the widget of `field`.
  void DropFrom(TextField& field, QWidget& fieldWidget, QWidget& window);

  // Makes a list of it that opens over `window` where the last right click was.
  void PopUpIn(QWidget& window);

  OrderedList& List() const { return list_; }
  RowsView& View() const { return view_; }
  TextField* Under() const { return under_; }
  bool Picks() const { return list_.onSelect || list_.onClick; }
  QWidget& ClickTarget() const override { return *view_.viewport(); }

  // Marks a row for the keys; -1 for none.
  void Walk(int row) { view_.SetWalked(row); }
  // Up and Down walk, Enter clicks the row walked to; any other key ends the walk. True when the
  // key has been dealt with.
  bool TakeWalkKey(const QKeyEvent& event);
  // Scrolls as a user does, until `row` is the first visible one.
  void DragTo(int row);

  void Apply() override;

  std::function<void()> onApplied;  // the rows on the screen are those of the list again

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  bool TakeMouse(QEvent* event);
  void Press(const QPoint& at, Qt::MouseButton button, bool twice);
  bool TakePageKey(const QKeyEvent& event);
  void Float(QWidget& window);
  void Place();

  OrderedList& list_;
  RowsView& view_;
  TextField* under_ = nullptr;
  QPointer<QWidget> underWidget_;
  QPointer<QWidget> window_;
  int appliedTop_ = 0;
  int appliedIndex_ = -1;
};

}  // namespace tamo
