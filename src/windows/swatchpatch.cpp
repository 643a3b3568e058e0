#include "windows/swatchpatch.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "windows/look.h"

namespace tamo {

namespace {

constexpr int kPatch = 3 * kGrid - 2;  // the height of a patch
constexpr int kRing = 4;               // room around it for the frame of the focus

}  // namespace

QColor ColourOf(const QString& code) {
  if (code.size() != 9) return {};
  int parts[3] = {};
  for (int i = 0; i < 3; ++i) {
    bool number = false;
    parts[i] = code.mid(3 * i, 3).toInt(&number);
    if (!number || parts[i] < 0) return {};
    parts[i] = std::min(parts[i], 255);
  }
  return {parts[0], parts[1], parts[2]};
}

SwatchPatch::SwatchPatch(Kind kind, QWidget* parent) : QWidget(parent), kind_(kind) {
  setFont(PromptFont());
  setSizePolicy(kind == Kind::Line ? QSizePolicy::Expanding : QSizePolicy::Fixed,
                QSizePolicy::Fixed);
}

void SwatchPatch::SetColour(const QString& code) {
  if (code_ == code) return;
  code_ = code;
  update();
}

void SwatchPatch::SetLineWidth(int pixels) {
  if (lineWidth_ == pixels) return;
  lineWidth_ = pixels;
  update();
}

void SwatchPatch::SetCaption(const QString& caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  updateGeometry();
  update();
}

QSize SwatchPatch::sizeHint() const {
  if (kind_ == Kind::Line) return {10 * kGrid, kFieldHeight};
  return {8 * kGrid, kPatch + 2 * kRing + 2 + QFontMetrics(font()).height()};
}

void SwatchPatch::paintEvent(QPaintEvent*) {
  const Look& look = CurrentLook();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QColor colour = ColourOf(code_);
  if (kind_ == Kind::Line) {
    // On white, as the line will stand on the plan.
    painter.setPen(QPen(hasFocus() ? look.accent : look.line, hasFocus() ? 2 : 1));
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 3, 3);
    if (!colour.isValid()) return;
    painter.setPen(
        QPen(colour, std::clamp(lineWidth_, 1, height() - 4), Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(QPointF(2 * kGrid, height() / 2.0),
                     QPointF(width() - 2 * kGrid, height() / 2.0));
    return;
  }
  if (hasFocus()) {
    painter.setPen(QPen(look.accent, 2));
    painter.setBrush(look.accentGround);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 3, 3);
  }
  const QRectF patch(kRing + 0.5, kRing + 0.5, width() - 2 * kRing - 1, kPatch - 1);
  painter.setPen(QPen(underMouse() ? look.accent : look.line, 1));
  painter.setBrush(colour.isValid() ? colour : look.window);
  painter.drawRoundedRect(patch, 3, 3);
  painter.setPen(look.text);
  const int below = kPatch + kRing + 1;
  painter.drawText(QRect(0, below, width(), height() - below - kRing), Qt::AlignCenter, caption_);
}

}  // namespace tamo
