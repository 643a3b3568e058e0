#pragma once

#include <QPointF>
#include <QString>
#include <QWidget>

#include "common/control.h"

class QAction;

// Keys and mouse for widgets, as the window system delivers them.

namespace tamo::player {

// Lets everything happen that waits to happen. Bounded.
void Settle();

// To the widget that has the focus.
void SendKey(QWidget& widget, const Key& key);
void SendTyped(QWidget& widget, const QString& character);  // one character, maybe two QChars

// Press (and release) at a place in the widget.
void SendPress(QWidget& widget, QPointF at, Qt::MouseButton button,
               Qt::KeyboardModifiers keys = Qt::NoModifier);
void SendMove(QWidget& widget, QPointF at, Qt::MouseButtons held,
              Qt::KeyboardModifiers keys = Qt::NoModifier);
void SendRelease(QWidget& widget, QPointF at, Qt::MouseButton button,
                 Qt::KeyboardModifiers keys = Qt::NoModifier);
void SendClick(QWidget& widget, QPointF at, Qt::MouseButton button);
void SendDoubleClick(QWidget& widget, QPointF at);

// Where a person clicks: in the middle of most things, on the box of a check box, behind a text.
enum class Spot { Middle, Start, End };

// A place within `area` of the widget that no other widget covers, at `spot` when that is open.
// Fails when there is none: `name` says whose.
QPointF OpenPlace(QWidget& widget, const QRect& area, const QString& name,
                  Spot spot = Spot::Middle);

// Chooses an action through the menus above it, or on a pop-up that is open, by mouse and keys.
void ChooseAction(QWidget& window, QAction& action, const QList<QAction*>& above);

}  // namespace tamo::player
