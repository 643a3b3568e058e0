#pragma once

#include <atomic>
#include <memory>

#include "engine/mupdfcontexts.h"
#include "plans/planengine.h"

namespace tamo {

// All a page shows, read once and painted many times, by any thread: its contents and the
// annotations of others. The marks of this program are left out.
class MuPdfPage : public LoadedPage {
 public:
  MuPdfPage(std::shared_ptr<MuPdfContexts> contexts, void* list, PageSize size, PageGaps gaps);
  ~MuPdfPage() override;
  MuPdfPage(const MuPdfPage&) = delete;
  MuPdfPage& operator=(const MuPdfPage&) = delete;
  PageSize Size() const override { return size_; }
  PageGaps Gaps() const override;
  void MissPictures() const { missesPictures_ = true; }
  void* List() const { return list_; }  // the engine's display list

 private:
  std::shared_ptr<MuPdfContexts> contexts_;
  void* list_;
  PageSize size_;
  PageGaps gaps_;  // when it was read
  mutable std::atomic<bool> missesPictures_ = false;
};

// The pages of a plan, read by one thread at a time.
class MuPdfPages {
 public:
  MuPdfPages(fz_context* context, std::shared_ptr<MuPdfContexts> contexts,
             const std::shared_ptr<PlanSource>& source, const QByteArray& password);
  ~MuPdfPages();
  MuPdfPages(const MuPdfPages&) = delete;
  MuPdfPages& operator=(const MuPdfPages&) = delete;

  // Null when the page can't be read or was cancelled; `page` counts from 1.
  std::shared_ptr<MuPdfPage> Read(int page, CancelFlag& cancel);
  // Of each layer whether it is shown on the pages that are read from then on.
  bool ShowLayers(const std::vector<bool>& shown);

 private:
  fz_context* context_;
  std::shared_ptr<MuPdfContexts> contexts_;
  void* document_ = nullptr;
};

// Paints a part of a page, as EnginePlan::Paint.
bool PaintPage(fz_context* context, const MuPdfPage& page, const PaintPart& part,
               CancelFlag& cancel, uint32_t* pixels);

}  // namespace tamo
