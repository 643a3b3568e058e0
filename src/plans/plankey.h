#pragma once

namespace tamo {

// A key on the plan. Left to Down move the cross hair while a tool is in hand (9 points a step,
// with Ctrl half a point) and scroll the page otherwise; Space places a point or a circle at the
// cross hair; Escape drops the line in work; Backspace drops its last point; Enter gives the focus
// back, and ends an outline in work; Arc makes its next two points those of an arc; Snap turns the
// snap to the drawing on or off, NextSnap takes the cross hair to the next place near it; Yes, No
// and All answer for a symbol that was found.
//
// No while nothing is asked, and MarkBefore choose a mark, one after the other, and put the tool
// away. Of the mark that is chosen NextSnap takes a point, then the next; Left to Down move that
// point, Delete takes the mark away, Escape lets go of it.
enum class PlanKey {
  Left,
  Right,
  Up,
  Down,
  Space,
  Enter,
  Escape,
  Backspace,
  Undo,
  Redo,
  Arc,
  Snap,
  NextSnap,
  Yes,
  No,
  All,
  MarkBefore,
  Delete
};

struct PlanStroke {
  PlanKey key = PlanKey::Enter;
  bool shift = false;  // keeps the line in work to steps of 45 degrees
  bool ctrl = false;
};

}  // namespace tamo
