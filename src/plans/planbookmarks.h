#pragma once

#include "common/kit.h"
#include "plans/ostcontrols.h"
#include "plans/planjumps.h"
#include "plans/sheetbook.h"

namespace tamo {

// The bookmarks of the plan and the links of the sheet in front, as lists to jump by; and the links
// where they lie on the sheet.
class PlanBookmarks {
 public:
  PlanBookmarks(const Kit& kit, OstControls& form, PdfDraw& viewer, SheetBook& book,
                PlanJumps& jumps);

  void Toggle();
  void PageShown();
  void BookNews();
  // The link at a place of the sheet in front, null for none.
  const PageLink* LinkAt(PagePoint at);
  bool FollowLinkAt(PagePoint at);
  QString TargetInWords(const PlanTarget& target) const;

 private:
  void Close();
  void Fill();
  void FillLinks();
  void GoToBookmark();
  void GoToLink();
  QString Words() const;

  const Kit kit_;
  OstControls& form_;
  PdfDraw& viewer_;
  SheetBook& book_;
  PlanJumps& jumps_;
};

}  // namespace tamo
