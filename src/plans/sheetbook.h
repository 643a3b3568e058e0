#pragma once

#include <atomic>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <vector>

#include "plans/planengine.h"
#include "plans/printedscale.h"
#include "plans/sheetnumber.h"
#include "plans/sheettexts.h"
#include "plans/workthread.h"

namespace tamo {

// What is known of the sheets of the plan that is shown: how each is called, the scales that it
// prints, its links, and the plan's bookmarks and layers. Read on threads of its own, from the
// sheet in front on; all calls come from one thread.
class SheetBook {
 public:
  struct Sheet {
    SheetTitle title;
    QString label;  // what the plan itself calls the page; "" when it says nothing
    std::vector<PrintedScale> scales;
    bool read = false;
  };

  SheetBook();
  ~SheetBook();
  SheetBook(const SheetBook&) = delete;
  SheetBook& operator=(const SheetBook&) = delete;

  std::function<void()> onNews;  // called by the threads that read; set before the first plan

  // Nothing happens when the plan is the one that is read; another, or none, drops what there is.
  void Want(const std::shared_ptr<EnginePlan>& plan, int pages, int first);
  // The sheets are not read on while it is held: something the estimator looks at goes first.
  void Hold(bool held) { *held_ = held; }
  // Takes what was read since; true when there was anything.
  bool Take();
  // The same, when all that was asked for is there; ends holding. For players.
  bool Wait(int milliseconds);

  int Sheets() const { return static_cast<int>(sheets_.size()); }
  int SheetsRead() const { return read_; }
  bool Done() const { return guided_ && read_ == Sheets(); }
  const Sheet& Of(int page) const;  // from 1; an empty one for any other
  // The title block's word, else the plan's own label for the page, else its one bookmark.
  const SheetTitle& TitleOf(int page) const { return Of(page).title; }
  bool Guided() const { return guided_; }  // the guide is there
  const PlanGuide& Guide() const { return guide_; }

  // Links of a page: null while they are read. Asking has them read.
  const std::vector<PageLink>* LinksOf(int page);
  // Shows layers as said; onNews tells when it is done, TakeLayersShown whether.
  void ShowLayers(const std::vector<bool>& shown);
  enum class LayersDone { No, Shown, Failed };
  LayersDone TakeLayersDone();

 private:
  struct Reading;
  void TakeGuide(PlanGuide guide);

  std::weak_ptr<EnginePlan> plan_;
  std::shared_ptr<Reading> reading_;
  std::shared_ptr<std::atomic<bool>> held_ = std::make_shared<std::atomic<bool>>(false);
  SheetTexts texts_;
  std::unique_ptr<WorkThread> thread_;  // for the guide, links and layers; from the first plan on
  std::vector<Sheet> sheets_;
  PlanGuide guide_;
  bool guided_ = false;
  int read_ = 0;
  std::map<int, std::vector<PageLink>> links_;
  int linksAsked_ = 0;  // the page whose links are on their way
};

}  // namespace tamo
