#pragma once

#include <QScrollArea>

namespace tamo {

// The contents. They begin to scroll where they would be smaller than their least height, not where
// they have less than the height they would like.
class BodyPage : public QWidget {
 public:
  int heightForWidth(int width) const override;
};

// What a window shows between its menu and its foot. On a screen that has the room it is never
// smaller than its contents; on a smaller one, or with larger letters, it scrolls, and the field in
// focus comes into sight.
class BodyArea : public QScrollArea {
 public:
  explicit BodyArea(BodyPage* contents);
  QSize minimumSizeHint() const override;
  QSize sizeHint() const override;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  QSize WholeSize() const;  // of the contents, without scrolling
};

// The control comes into sight, wherever it is scrolled.
void BringIntoSight(QWidget& widget);

}  // namespace tamo
