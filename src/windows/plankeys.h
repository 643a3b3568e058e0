#pragma once

#include <functional>

#include "plans/pdfdraw.h"
#include "windows/plancanvas.h"

class QKeyEvent;

namespace tamo {

// What a key on the plan does: tools and ways of looking by letters, the cross hair by arrows, the
// pages. Each key is an event of the desk.
class PlanKeys {
 public:
  // All outlive it.
  PlanKeys(PlanCanvas& canvas, PdfDraw& viewer, Desk& desk)
      : canvas_(canvas), viewer_(viewer), desk_(desk) {}

  bool Take(const QKeyEvent& event);  // true when the plan has taken it

  std::function<void()> onZoomIn, onZoomOut;  // plus and minus: a step
  std::function<void()> onGroups;             // G: groups of counting circles

 private:
  bool TakeLetter(int key);
  bool TakeLook(int key);
  bool TakeNextSnap();
  void TakePageKey(bool next, bool ctrl);
  bool TakeCountLetter(int key);
  void Press(const PlanStroke& stroke);

  PlanCanvas& canvas_;
  PdfDraw& viewer_;
  Desk& desk_;
};

}  // namespace tamo
