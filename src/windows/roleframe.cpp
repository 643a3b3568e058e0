#include "windows/roleframe.h"

#include <QListView>
#include <QPainter>
#include <QPlainTextEdit>
#include <QStyleOption>

#include "windows/boxpaint.h"
#include "windows/look.h"
#include "windows/roles.h"

namespace tamo {
namespace {

void PaintRuledOff(QPainter& painter, const QRect& place, const QColor& ground, const QColor& line,
                   int width) {
  painter.fillRect(place, ground);
  painter.fillRect(QRect(place.topLeft(), QSize(place.width(), width)), line);
}

QMargins Around(int room) {
  return {room, room, room, room};
}

}  // namespace

bool HasOwnFrame(const QWidget* widget) {
  return widget != nullptr &&
         (qobject_cast<const QPlainTextEdit*>(widget) != nullptr ||
          qobject_cast<const QListView*>(widget) != nullptr || RoleOf(*widget) != Role::None);
}

QMargins RoomOfFrame(const QWidget& widget) {
  if (qobject_cast<const QPlainTextEdit*>(&widget) != nullptr) return Around(kTextRoom);
  if (qobject_cast<const QListView*>(&widget) != nullptr) return Around(kListRoom);
  switch (RoleOf(widget)) {
    case Role::Panel:
    case Role::Offer:
      return Around(1);
    case Role::Foot:
      return {0, 1, 0, 0};
    case Role::Notice:
      return {0, 2, 0, 0};
    case Role::Tag:
      return {kTagSide, kTagAbove, kTagSide, kTagAbove};
    default:
      return {};
  }
}

void PaintOwnFrame(QPainter& painter, const QStyleOption& option, const QWidget& widget) {
  const Look& look = CurrentLook();
  const QRect& place = option.rect;
  if (const auto* notes = qobject_cast<const QPlainTextEdit*>(&widget))
    return PaintField(painter, option, notes->isReadOnly());
  const Role role = RoleOf(widget);
  if (qobject_cast<const QListView*>(&widget) != nullptr)
    return PaintListFrame(painter, option, role == Role::Drop);
  switch (role) {
    case Role::Panel:
      return PaintBox(painter, place, {look.base, look.line, 1, 4});
    case Role::Offer:
      return PaintBox(painter, place, {look.base, look.accent});
    case Role::Tag:
      return PaintBox(painter, place, {look.notice, look.noticeLine});
    case Role::Foot:
      return PaintRuledOff(painter, place, look.window, look.faintLine, 1);
    case Role::Notice:
      return PaintRuledOff(painter, place, look.notice, look.noticeLine, 2);
    case Role::Rule:
      return painter.fillRect(place, look.faintLine);
    default:
      break;
  }
}

}  // namespace tamo
