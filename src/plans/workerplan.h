#pragma once

#include <atomic>
#include <memory>
#include <mutex>
#include <shared_mutex>
#include <vector>

#include "plans/planengine.h"
#include "plans/workerlink.h"
#include "plans/workersource.h"

namespace tamo {

// A plan that a worker reads. When the worker ends in the middle of several calls, each is tried
// once more, alone in a new worker: so only the call that ends workers fails.
class WorkerPlan : public EnginePlan, public std::enable_shared_from_this<WorkerPlan> {
 public:
  WorkerPlan(std::shared_ptr<WorkerSource> workers, std::shared_ptr<PlanSource> source);

  PlanContents Open(const QString& password) override;
  std::shared_ptr<LoadedPage> LoadPage(int page, CancelFlag& cancel) override;
  bool Paint(const LoadedPage& page, const PaintPart& part, CancelFlag& cancel,
             uint32_t* pixels) override;
  PageContent ReadContent(int page, CancelFlag& cancel) override;
  PageContent ReadTexts(int page, CancelFlag& cancel) override;
  PlanGuide ReadGuide() override;
  std::vector<PageLink> ReadLinks(int page) override;
  bool ShowLayers(const std::vector<bool>& shown) override;
  PlanUpdate BuildUpdate(const MarkChanges& changes) override;
  void ForgetUpdate() override;
  int WriteWhole(const Sink& sink, QString& problem) override;
  void Abandon() override;

  // The worker at work, -1 when there is none. For tests.
  pid_t Process();

 private:
  class Page;
  using Link = std::shared_ptr<WorkerLink>;
  using Work = std::function<WorkerLink::Answer(const Link& link)>;

  // Does `work` with a worker that has the plan open.
  WorkerLink::Answer Ask(const Work& work);
  Link OpenLink();
  WorkerLink::Answer OpenIn(const Link& link);
  bool Repeat(const Link& link);
  PageContent ReadPage(WireKind kind, int page, CancelFlag& cancel);
  qint64 GrownSize() const;
  WorkerLink::Answer LoadIn(const Link& link, int number, CancelFlag& cancel, Page* page);
  WorkerLink::Answer PaintIn(const Link& link, const Page& page, const PaintPart& part,
                             CancelFlag& cancel, uint32_t* pixels);

  const std::shared_ptr<WorkerSource> workers_;
  const std::shared_ptr<PlanSource> source_;
  std::atomic<bool> abandoned_ = false;
  std::shared_mutex lane_;  // calls share it; who tries again has it alone
  std::mutex mutex_;
  Link link_;
  QString password_;
  int starts_ = 0;
  // What the plan has had added, for the next worker.
  struct Update {
    MarkChanges changes;
    qint64 bytes = 0;
  };
  std::vector<Update> updates_;
  std::vector<bool> layers_;  // as they were last shown, for the next worker
};

}  // namespace tamo
