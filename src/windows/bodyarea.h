#pragma once

#include <QScrollArea>

namespace tamo {

// What a window shows between its menu and its foot. On a screen that has the room it is never
// smaller than its contents; on a smaller one, or with larger letters, it scrolls, and the field in
// focus comes into sight.
class BodyArea : public QScrollArea {
 public:
  explicit BodyArea(QWidget* contents);
  QSize minimumSizeHint() const override;
  QSize sizeHint() const override;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
};

// The control comes into sight, wherever it is scrolled.
void BringIntoSight(QWidget& widget);

}  // namespace tamo
