#pragma once

#include <QMargins>

class QPainter;
class QStyleOption;
class QWidget;

namespace tamo {

// The frames that the program has looks of its own for: notes, lists, and what has been given a
// role. Others are the toolkit's.
bool HasOwnFrame(const QWidget* widget);
// The room that the frame takes of the widget, in pixels.
QMargins RoomOfFrame(const QWidget& widget);
void PaintOwnFrame(QPainter& painter, const QStyleOption& option, const QWidget& widget);

}  // namespace tamo
