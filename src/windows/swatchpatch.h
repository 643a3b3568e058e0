#pragma once

#include <QColor>
#include <QWidget>

namespace tamo {

// The colour that a code of nine digits means: RRRGGGBBB, each part at most 255. Not valid for any
// other text.
QColor ColourOf(const QString& code);

// A patch in one colour with its caption under it, or a sample line in a colour and width.
class SwatchPatch : public QWidget {
 public:
  enum class Kind { Patch, Line };
  explicit SwatchPatch(Kind kind, QWidget* parent = nullptr);

  Kind GetKind() const { return kind_; }
  void SetColour(const QString& code);  // "" paints the ground
  void SetLineWidth(int pixels);
  void SetCaption(const QString& caption);
  const QString& Colour() const { return code_; }
  int LineWidth() const { return lineWidth_; }
  const QString& Caption() const { return caption_; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Kind kind_;
  QString code_;
  int lineWidth_ = 1;
  QString caption_;
};

}  // namespace tamo
