#pragma once

#include <QColor>

class QPainter;
class QRect;
class QStyleOption;
class QWidget;

namespace tamo {

struct Look;

// Grounds and lines round widgets, in pixels inside the widget's rectangle.

// How far text and rows stand from the widget's edge: the line and the room inside it.
inline constexpr int kFieldSide = 7;
inline constexpr int kFieldAbove = 4;
inline constexpr int kTextRoom = 5;
inline constexpr int kListRoom = 2;
inline constexpr int kButtonSide = 15;
inline constexpr int kChoiceRoom = 5;
inline constexpr int kTagSide = 7;
inline constexpr int kTagAbove = 3;

struct BoxLook {
  QColor ground;
  QColor line;
  int width = 1;  // of the line
  int radius = 3;
};

// A rectangle with round corners, its line inside `place`.
void PaintBox(QPainter& painter, const QRect& place, const BoxLook& look);

// Fields, notes and lists: a line at rest, the accent where the keyboard is, faint where nothing
// can be entered.
void PaintField(QPainter& painter, const QStyleOption& option, bool readOnly);
void PaintListFrame(QPainter& painter, const QStyleOption& option, bool drops);
void PaintButton(QPainter& painter, const QStyleOption& option);
// Round a tick box or an option in focus.
void PaintChoiceFocus(QPainter& painter, const QStyleOption& option);

}  // namespace tamo
