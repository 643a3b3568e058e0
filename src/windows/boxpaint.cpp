#include "windows/boxpaint.h"

#include <QPainter>
#include <QStyleOption>

#include "windows/look.h"

namespace tamo {
namespace {

bool Is(const QStyleOption& option, QStyle::StateFlag flag) {
  return (option.state & flag) != 0;
}

}  // namespace

void PaintBox(QPainter& painter, const QRect& place, const BoxLook& look) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const double half = look.width / 2.0;
  painter.setPen(look.width > 0 ? QPen(look.line, look.width) : QPen(Qt::NoPen));
  painter.setBrush(look.ground.isValid() ? QBrush(look.ground) : QBrush(Qt::NoBrush));
  const double radius = look.radius - half;
  painter.drawRoundedRect(QRectF(place).adjusted(half, half, -half, -half), radius, radius);
  painter.restore();
}

void PaintField(QPainter& painter, const QStyleOption& option, bool readOnly) {
  const Look& look = CurrentLook();
  if (Is(option, QStyle::State_HasFocus)) {
    PaintBox(painter, option.rect, {look.accentGround, look.accent, 2});
  } else if (readOnly) {
    PaintBox(painter, option.rect, {look.window, look.faintLine});
  } else {
    PaintBox(painter, option.rect, {look.base, look.line});
  }
}

void PaintListFrame(QPainter& painter, const QStyleOption& option, bool drops) {
  const Look& look = CurrentLook();
  if (drops) {
    PaintBox(painter, option.rect, {look.base, look.accent});
  } else if (Is(option, QStyle::State_HasFocus)) {
    PaintBox(painter, option.rect, {look.base, look.accent, 2});
  } else {
    PaintBox(painter, option.rect, {look.base, look.line});
  }
}

void PaintButton(QPainter& painter, const QStyleOption& option) {
  const Look& look = CurrentLook();
  const bool focused = Is(option, QStyle::State_HasFocus);
  const bool enabled = Is(option, QStyle::State_Enabled);
  BoxLook box{option.palette.color(QPalette::Active, QPalette::Button), look.line};
  if (focused || (Is(option, QStyle::State_Sunken) && enabled)) box.ground = look.accentGround;
  if (focused || (Is(option, QStyle::State_MouseOver) && enabled)) box.line = look.accent;
  if (!enabled) box.line = look.faintLine;
  if (focused) box.width = 2;
  PaintBox(painter, option.rect, box);
}

void PaintChoiceFocus(QPainter& painter, const QStyleOption& option) {
  const Look& look = CurrentLook();
  if (Is(option, QStyle::State_HasFocus))
    PaintBox(painter, option.rect, {look.accentGround, look.accent, 2});
}

}  // namespace tamo
