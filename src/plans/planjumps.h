#pragma once

#include <functional>

#include "plans/jumptrail.h"
#include "plans/pdfdraw.h"
#include "plans/planrecord.h"

namespace tamo {

// Jumps from sheet to sheet, and the way back. What leads out of the plan is never followed, only
// said.
class PlanJumps {
 public:
  PlanJumps(PdfDraw& viewer, PlanRecord& record) : viewer_(viewer), record_(record) {}

  void GoToPage(int page);
  void Follow(const PlanTarget& target);
  void Back();
  void Forward();
  // Whoever turned the page: turning on leaf by leaf is one jump, however many leaves.
  void PageShown();

  std::function<void(const QString& words)> say;

 private:
  SheetPlace Now() const;
  void Show(const SheetPlace& place);

  PdfDraw& viewer_;
  PlanRecord& record_;
  JumpTrail trail_;
  std::weak_ptr<EnginePlan> plan_;
  SheetPlace last_;       // when a page was last shown
  bool leafing_ = false;  // the last change of the page was one leaf
  bool jumping_ = false;  // this turns the page itself
};

// A target that lies outside of the plan, as a sentence.
QString OutsideInWords(const PlanTarget& target);

}  // namespace tamo
