#pragma once

#include <vector>

#include "plans/mark.h"
#include "plans/planevents.h"

namespace tamo {

// What the three saved values of the view say: the place of the page, in whole points, that stands
// at the view's top left corner, and the turn of the view in degrees.
enum class ViewPart { Horizontal = 0, Vertical = 1, Rotation = 2 };

// The sheets of a plan and how they are looked at: page, zoom, position and turn.
class SheetView : public PlanEvents {
 public:
  virtual ~SheetView() = default;

  void SetPage(int page);   // from 1; brought into 1..PageCount(); raises onPageChanged
  void TurnPage(int page);  // the same, by the user
  int Page() const { return page_; }
  int PageCount() const { return static_cast<int>(sizes_.size()); }  // at least 1
  PageSize SizeOfPage(int page) const;                               // points
  const std::vector<PageSize>& Sizes() const { return sizes_; }      // of all pages

  void SetZoom(int perCent);  // brought into 5..1600
  int Zoom() const { return zoom_; }

  // What is set is what is got; what is shown is brought into the page and to quarter turns. Raises
  // nothing but onViewChanged.
  void SetViewValue(ViewPart part, int value);
  int ViewValue(ViewPart part) const { return view_[static_cast<int>(part)]; }
  void ScrollBy(double dx, double dy);  // points, by the user; raises onScrolled when it moves

 protected:
  // A plan begins: its pages are not known yet, the view is at its start.
  void BeginSheets();
  // Its pages come; page and view stay as they were set meanwhile.
  void FillSheets(std::vector<PageSize> sizes);
  // Another page is about to be shown.
  virtual void LeavePage() {}
  void ViewChanged() { Raise(onViewChanged); }

 private:
  std::vector<PageSize> sizes_ = {PageSize()};
  int page_ = 1;
  int wantedPage_ = 1;  // also when there are fewer (so far)
  int zoom_ = 100;      // per cent
  int view_[3] = {0, 0, 0};
};

}  // namespace tamo
