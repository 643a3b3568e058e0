#pragma once

#include <QPushButton>

namespace tamo {

// A figure of the home page that leads to where it is made: of the text "name: figure" the name
// stands small over the figure. A text without a colon is all figure.
class HomeCell : public QPushButton {
 public:
  enum class Weight { Plain, Strong };
  explicit HomeCell(Weight weight = Weight::Plain);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  // The lower part of the cell, for a picture.
  virtual void PaintMore(QPainter&, const QRect&) {}
  virtual bool HasMore() const { return false; }
  int TextHeight() const;

 private:
  QFont NameFont() const;
  QFont OwnFont() const;

  const Weight weight_;
};

}  // namespace tamo
