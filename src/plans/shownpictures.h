#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "plans/newspost.h"
#include "plans/overlaypictures.h"
#include "plans/planpainter.h"
#include "plans/planpictures.h"

namespace tamo {

// The pictures of the plan that is shown, and in their place those of another one laid over it,
// where there are some.
class ShownPictures : public PlanPictures {
 public:
  // `over` outlives it. `file` gives the name of the plan, for sentences.
  ShownPictures(OverlayPictures& over, std::function<QString()> file);

  // Another plan is painted from now on, whose pages have the sizes `sizes`.
  void Show(std::shared_ptr<EnginePlan> plan, std::vector<PageSize> sizes);
  void Drop();    // none is
  void Forget();  // the plan shows something else than before: all is painted anew

  void Look(const PlanView& view) override;
  std::vector<PlacedPicture> PicturesFor(const PlanView& view) override;
  std::shared_ptr<const Picture> Thumbnail(int page, int longSide) override;
  std::shared_ptr<const Picture> PrintPicture(const PlanView& part,
                                              const std::function<void()>& meanwhile) override;

  // Waits until everything visible is there in full sharpness, or the coarse picture is.
  bool WaitUntilSharp(int milliseconds);
  bool WaitForCoarse(int milliseconds);

  // Whether something that is looked at is still to be painted.
  std::function<void(bool painting)> onPainting;
  // A page can't be drawn, or not whole: a sentence.
  std::function<void(const QString& text)> onPageProblem;

 private:
  PlanPainter* PainterOf(int page) const;  // null when there is none
  void Painted();
  void TellOfPages();
  void TellOfPainting();

  OverlayPictures& over_;
  std::function<QString()> file_;
  NewsPost news_;  // from the painter's threads: many pictures are one piece
  std::unique_ptr<PlanPainter> painter_;
  int page_ = 0;  // that was last looked at
};

}  // namespace tamo
