#pragma once

#include <map>
#include <memory>
#include <optional>

#include "plans/comparework.h"
#include "plans/overlaypictures.h"
#include "plans/plankey.h"
#include "plans/sheetjobs.h"
#include "plans/twopoints.h"

namespace tamo {

class PdfDraw;

// Another plan laid over the one that is open: its former state, opened for
// reading alone, through a worker of its own. The sheet in front is paired with
// one of it; what can be found out about the two is found out on a thread of
// its own. All calls come from the viewer's thread.
class Comparison {
 public:
  explicit Comparison(PdfDraw& viewer);
  ~Comparison();

  // What went before ends. Comes back at once; Words() says how it goes, also
  // when it can't be.
  void Begin(const QString& path, const QString& password);
  void End();
  bool On() const { return old_ != nullptr; }
  bool WantsPassword() const { return wantsPassword_; }
  QString Path() const { return former_.path; }
  // Another page is in front, or the plan was saved and is read anew.
  void Follow();

  // Another sheet of the other plan belongs to the one in front: `by` sheets
  // on.
  void StepPair(int by);
  // Both sheets, the old one alone, the new one alone, and again.
  void NextLayer();
  // The plan in front is the older one, or is not.
  void Swap();
  // What is said of a place, by which of the two plans is the newer one.
  const QString& WordsOf(const ChangedPlace& place) const {
    return swapped_ ? place.back : place.words;
  }
  // The sheets are to be laid over each other by two points on each, given by
  // presses.
  void AskPoints();
  // Walks through the changed places of the sheet in front, round the end.
  void StepPlace(int by);
  void GoToPlace(int place);
  int Place() const { return place_; }  // -1 for none
  bool TakeKey(const PlanStroke& stroke);

  const std::vector<Mark>& OldMarks() const { return former_.marks; }
  // What is in work for it; all of it is stopped when the comparison ends.
  SheetJobs& Jobs() { return jobs_; }
  // The two plans as they are compared; the pages are to be set.
  CompareTask Task() const;

  // What is compared and how, in sentences.
  QString Words() const;
  // Of the sheet in front; null as long as nothing is known.
  const SheetsCompared* Known() const;

  // In the place of the viewer's own pictures; empty while there are none.
  bool Shows(int page) const { return pictures_.Shows(page); }
  OverlayPictures& Pictures() { return pictures_; }

  std::function<void()> onChanged;                      // the words, the pairs, or what is known
  std::function<void(const PageBox& box)> onShowPlace;  // it is to come into sight

 private:
  void Opened(const PlanContents& contents);
  void Fail(const QString& words);
  void Compare(bool anew);
  void Took(const SheetsCompared& known, int searched);
  void ShowPair(const SheetsCompared& known);
  void PicturesCame();
  void StopWork();
  int Pages() const { return static_cast<int>(former_.sizes.size()); }
  bool TakeEscape();
  void TakePoint(PagePoint at);
  void EndPoints();
  void ShowAskedSheet();
  void Tell() const {
    if (onChanged) onChanged();
  }

  PdfDraw& viewer_;
  SheetJobs jobs_;
  std::shared_ptr<std::atomic<bool>> picturesTold_ = std::make_shared<std::atomic<bool>>(false);
  OverlayPictures pictures_;
  QString problem_;
  bool wantsPassword_ = false;
  bool swapped_ = false;
  std::shared_ptr<EnginePlan> now_;
  std::shared_ptr<EnginePlan> old_;
  struct {
    QString path;
    std::vector<PageSize> sizes;  // empty while it is opened
    std::vector<Mark> marks;
    std::shared_ptr<SheetPairs> sheets;
  } former_;
  int page_ = 0;                         // that is compared
  int searched_ = 0;                     // sheets, for the one that belongs to it
  std::map<int, SheetsCompared> known_;  // by page of the plan in front
  int place_ = -1;
  TwoPoints points_;
};

}  // namespace tamo
