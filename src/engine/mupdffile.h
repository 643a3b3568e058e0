#pragma once

#include <memory>

#include "engine/mupdfcontexts.h"
#include "plans/planengine.h"

namespace tamo {

// The structure of an open plan: its pages, its marks, and what a save appends. One thread at a
// time; every call catches the engine's failures.
class MuPdfFile {
 public:
  MuPdfFile(fz_context* context, std::shared_ptr<MuPdfContexts> contexts,
            std::shared_ptr<PlanSource> source);
  ~MuPdfFile();
  MuPdfFile(const MuPdfFile&) = delete;
  MuPdfFile& operator=(const MuPdfFile&) = delete;

  PlanContents Open(const QString& password);
  PlanGuide ReadGuide();
  std::vector<PageLink> ReadLinks(int page);
  bool ShowLayers(const std::vector<bool>& shown);  // as the guide then tells them

  // As the calls of EnginePlan.
  PlanUpdate BuildUpdate(const MarkChanges& changes);
  void ForgetUpdate();
  int WriteWhole(const EnginePlan::Sink& sink, QString& problem);

 private:
  struct Inner;
  std::unique_ptr<Inner> inner_;
};

}  // namespace tamo
