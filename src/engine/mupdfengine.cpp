#include "engine/mupdfengine.h"

#include <mutex>
#include <utility>

#include "common/failure.h"
#include "engine/mupdfcontentdocument.h"
#include "engine/mupdfcontexts.h"
#include "engine/mupdffile.h"
#include "engine/mupdfpages.h"

namespace tamo {
namespace {

// A context of the engine that is given back.
class Context {
 public:
  explicit Context(MuPdfContexts& contexts) : context_(contexts.NewContext()) {}
  ~Context() { MuPdfContexts::DropContext(context_); }
  Context(const Context&) = delete;
  Context& operator=(const Context&) = delete;
  fz_context* Get() const { return context_; }

 private:
  fz_context* context_;
};

// The plan is opened twice: its structure (to be saved) and its pages (to be looked at), so that a
// save never waits for a page that is slow to read, nor a page for a save.
class MuPdfPlan : public EnginePlan {
 public:
  MuPdfPlan(std::shared_ptr<MuPdfContexts> contexts, std::shared_ptr<PlanSource> source)
      : contexts_(std::move(contexts)), source_(std::move(source)) {}

  PlanContents Open(const QString& password) override {
    const std::lock_guard<std::mutex> guard(structureLock_);
    password_ = password.toUtf8();
    if (structureContext_.Get() == nullptr) {
      PlanContents contents;
      contents.error = kFileOther;
      contents.problem = QStringLiteral("there is not enough memory");
      return contents;
    }
    structure_ = std::make_unique<MuPdfFile>(structureContext_.Get(), contexts_, source_);
    return structure_->Open(password);
  }

  std::shared_ptr<LoadedPage> LoadPage(int page, CancelFlag& cancel) override {
    const std::lock_guard<std::mutex> guard(pagesLock_);
    if (pagesContext_.Get() == nullptr) return nullptr;
    if (contexts_->ForgetsObjects()) pages_.reset();
    if (pages_ == nullptr) {
      pages_ = std::make_unique<MuPdfPages>(pagesContext_.Get(), contexts_, source_, password_);
      if (!layers_.empty()) pages_->ShowLayers(layers_);
    }
    return pages_->Read(page, cancel);
  }

  bool Paint(const LoadedPage& page, const PaintPart& part, CancelFlag& cancel,
             uint32_t* pixels) override {
    const auto* loaded = dynamic_cast<const MuPdfPage*>(&page);
    const Context context(*contexts_);
    return loaded != nullptr && context.Get() != nullptr &&
           PaintPage(context.Get(), *loaded, part, cancel, pixels);
  }

  PageContent ReadContent(int page, CancelFlag& cancel) override {
    const std::lock_guard<std::mutex> guard(contentLock_);
    return Content().Read(page, &cancel.Value());
  }
  PageContent ReadTexts(int page, CancelFlag& cancel) override {
    const std::lock_guard<std::mutex> guard(contentLock_);
    return Content().ReadTexts(page, &cancel.Value());
  }

  PlanGuide ReadGuide() override {
    const std::lock_guard<std::mutex> guard(structureLock_);
    return structure_ != nullptr ? structure_->ReadGuide() : PlanGuide();
  }
  std::vector<PageLink> ReadLinks(int page) override {
    const std::lock_guard<std::mutex> guard(structureLock_);
    return structure_ != nullptr ? structure_->ReadLinks(page) : std::vector<PageLink>();
  }
  bool ShowLayers(const std::vector<bool>& shown) override {
    bool good = false;
    {
      const std::lock_guard<std::mutex> guard(structureLock_);
      if (structure_ == nullptr || !structure_->ShowLayers(shown)) return false;
    }
    {
      const std::lock_guard<std::mutex> guard(pagesLock_);
      layers_ = shown;
      good = pages_ == nullptr || pages_->ShowLayers(shown);
    }
    const std::lock_guard<std::mutex> guard(contentLock_);
    return Content().ShowLayers(shown) && good;
  }

  PlanUpdate BuildUpdate(const MarkChanges& changes) override {
    const std::lock_guard<std::mutex> guard(structureLock_);
    if (structure_ != nullptr) return structure_->BuildUpdate(changes);
    return {kFileOther, QStringLiteral("it is not open"), false, {}};
  }

  void ForgetUpdate() override {
    const std::lock_guard<std::mutex> guard(structureLock_);
    if (structure_ != nullptr) structure_->ForgetUpdate();
  }

  int WriteWhole(const Sink& sink, QString& problem) override {
    const std::lock_guard<std::mutex> guard(structureLock_);
    if (structure_ != nullptr) return structure_->WriteWhole(sink, problem);
    problem = QStringLiteral("it is not open");
    return kFileOther;
  }

  void Abandon() override { contexts_->Abandon(); }

 private:
  MuPdfContentDocument& Content() {
    if (content_ == nullptr) {
      content_ =
          std::make_unique<MuPdfContentDocument>(source_->Reader(), source_->Size(), password_);
    }
    return *content_;
  }

  std::shared_ptr<MuPdfContexts> contexts_;
  std::shared_ptr<PlanSource> source_;
  QByteArray password_;
  std::vector<bool> layers_;  // as they were last shown; guarded as the pages are
  std::mutex structureLock_;
  Context structureContext_{*contexts_};
  std::unique_ptr<MuPdfFile> structure_;
  std::mutex pagesLock_;
  Context pagesContext_{*contexts_};
  std::unique_ptr<MuPdfPages> pages_;
  std::mutex contentLock_;
  std::unique_ptr<MuPdfContentDocument> content_;
};

}  // namespace

void MuPdfEngine::GetReady() {
  const std::lock_guard<std::mutex> guard(mutex_);
  ready_ = MuPdfContexts::Make();
}

std::shared_ptr<EnginePlan> MuPdfEngine::NewPlan(std::shared_ptr<PlanSource> source) {
  std::shared_ptr<MuPdfContexts> contexts;
  {
    const std::lock_guard<std::mutex> guard(mutex_);
    contexts = std::move(ready_);
  }
  if (contexts == nullptr) contexts = MuPdfContexts::Make();
  if (contexts == nullptr) return nullptr;
  return std::make_shared<MuPdfPlan>(std::move(contexts), std::move(source));
}

}  // namespace tamo
