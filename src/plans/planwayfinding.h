#pragma once

#include "common/kit.h"
#include "plans/newspost.h"
#include "plans/planbookmarks.h"
#include "plans/plangoto.h"
#include "plans/planjumps.h"
#include "plans/planlayers.h"
#include "plans/sheetbook.h"

namespace tamo {

// All that helps to find one's way in a set of plans, over one book of its sheets.
class PlanWayfinding {
 public:
  PlanWayfinding(const Kit& kit, OstControls& form, PdfDraw& viewer, PlanRecord& record);

  // The plan or the page in front is another one.
  void PageShown();
  // For players: all that is known of the sheets is there. Bounded in time.
  void FinishReading(int milliseconds);

  const SheetBook& Book() const { return book_; }
  PlanBookmarks& Bookmarks() { return bookmarks_; }
  PlanGoTo& GoTo() { return goTo_; }

  std::function<void()> onSheetKnown;  // something is known of the sheet in front
  std::function<void()> onBookNews;    // of any sheet; the window's

 private:
  void BindMenus();
  void News(bool waited = false);

  const Kit kit_;
  OstControls& form_;
  PdfDraw& viewer_;
  SheetBook book_;
  PlanJumps jumps_;
  PlanGoTo goTo_;
  PlanBookmarks bookmarks_;
  PlanLayers layers_;
  QString title_;     // of the sheet in front
  int toldPage_ = 0;  // onSheetKnown was called for it
  NewsPost post_;
};

}  // namespace tamo
