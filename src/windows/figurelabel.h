#pragma once

#include <QLabel>

namespace tamo {

// A figure as money of two decimals: its text stays whole, and is shown whole on hover.
class FigureLabel : public QLabel {
 public:
  using QLabel::QLabel;
  QString Shown() const;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;
};

// `text` with two decimals when it is a number with more; else as it is.
QString InTwoDecimals(const QString& text);

}  // namespace tamo
