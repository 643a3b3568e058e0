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
void SendPress(QWidget& widget, QPointF at, Qt::MouseButton button);
void SendMove(QWidget& widget, QPointF at, Qt::MouseButtons held);
void SendRelease(QWidget& widget, QPointF at, Qt::MouseButton button);
void SendClick(QWidget& widget, QPointF at, Qt::MouseButton button);
void SendDoubleClick(QWidget& widget, QPointF at);

// A place within `area` of the widget that no other widget covers: its middle, in a text its end,
// when these are open. Fails when there is none: `name` says whose.
QPointF OpenPlace(QWidget& widget, const QRect& area, const QString& name, bool end = false);

// Chooses an action through the menus above it, or on a pop-up that is open, by mouse and keys.
void ChooseAction(QWidget& window, QAction& action, const QList<QAction*>& above);

}  // namespace tamo::player
