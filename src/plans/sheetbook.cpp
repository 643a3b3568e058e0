#include "plans/sheetbook.h"

#include <utility>

#include "plans/waituntil.h"

namespace tamo {
namespace {

constexpr size_t kMostLinkPages = 50;  // whose links are kept

}  // namespace

// What the threads have read and nobody has taken yet.
struct SheetBook::Reading {
  std::function<void()> onNews;
  std::mutex mutex;
  std::vector<std::pair<int, Sheet>> sheets;
  std::unique_ptr<PlanGuide> guide;
  std::map<int, std::vector<PageLink>> links;
  LayersDone layers = LayersDone::No;
  int working = 0;  // what was asked for and has not come

  void Tell() const {
    if (onNews) onNews();
  }
};

SheetBook::SheetBook() {
  texts_.mayRead = [held = held_] { return !*held; };
}

SheetBook::~SheetBook() {
  texts_.Drop();
}

void SheetBook::Want(const std::shared_ptr<EnginePlan>& plan, int pages, int first) {
  if (plan != nullptr && plan_.lock() == plan && Sheets() == pages) return;
  texts_.Drop();
  reading_.reset();
  plan_ = plan;
  sheets_.clear();
  guide_ = {};
  guided_ = false;
  read_ = 0;
  links_.clear();
  linksAsked_ = 0;
  if (plan == nullptr) return;
  sheets_.resize(static_cast<size_t>(pages));
  reading_ = std::make_shared<Reading>();
  reading_->onNews = onNews;
  if (thread_ == nullptr) thread_ = std::make_unique<WorkThread>();
  thread_->Post([plan, reading = reading_] {
    auto guide = std::make_unique<PlanGuide>(plan->ReadGuide());
    {
      const std::lock_guard<std::mutex> guard(reading->mutex);
      reading->guide = std::move(guide);
    }
    reading->Tell();
  });
  texts_.onSheet = [reading = reading_](const SheetTexts::Sheet& sheet) {
    Sheet read;
    read.title = SheetTitleOf(sheet.lines, sheet.size);
    read.scales = ScalesOf(sheet.lines);
    read.read = true;
    {
      const std::lock_guard<std::mutex> guard(reading->mutex);
      reading->sheets.emplace_back(sheet.page, std::move(read));
    }
    reading->Tell();
  };
  texts_.Want(plan, pages, first);
}

const SheetBook::Sheet& SheetBook::Of(int page) const {
  static const Sheet none;
  return page >= 1 && page <= Sheets() ? sheets_[static_cast<size_t>(page) - 1] : none;
}

bool SheetBook::Take() {
  if (reading_ == nullptr) return false;
  std::vector<std::pair<int, Sheet>> sheets;
  std::unique_ptr<PlanGuide> guide;
  std::map<int, std::vector<PageLink>> links;
  bool layers = false;
  {
    const std::lock_guard<std::mutex> guard(reading_->mutex);
    sheets.swap(reading_->sheets);
    guide.swap(reading_->guide);
    links.swap(reading_->links);
    layers = reading_->layers != LayersDone::No;
  }
  for (auto& [page, read] : sheets) {
    if (page < 1 || page > Sheets()) continue;
    Sheet& sheet = sheets_[static_cast<size_t>(page) - 1];
    sheet.scales = std::move(read.scales);
    sheet.read = true;
    ++read_;
    if (!read.title.number.isEmpty()) {
      const bool same = PlainSheetNumber(read.title.number) == PlainSheetNumber(sheet.title.number);
      if (same && read.title.name.isEmpty()) read.title.name = std::move(sheet.title.name);
      sheet.title = std::move(read.title);
    } else if (!read.title.name.isEmpty()) {
      sheet.title.name = std::move(read.title.name);
    }
  }
  if (guide != nullptr) TakeGuide(std::move(*guide));
  const bool news = !sheets.empty() || guide != nullptr || !links.empty() || layers;
  if (links.count(linksAsked_) != 0) linksAsked_ = 0;
  if (links_.size() + links.size() > kMostLinkPages) links_.clear();
  links_.merge(links);
  return news;
}

// Labels and bookmarks that begin with a number of a sheet speak where the title block did not.
void SheetBook::TakeGuide(PlanGuide guide) {
  guide_ = std::move(guide);
  guided_ = true;
  std::map<int, SheetTitle> marked;
  std::map<int, int> marks;
  for (const PlanBookmark& bookmark : guide_.bookmarks) {
    const SheetTitle title = SheetTitleOfLabel(bookmark.title);
    if (bookmark.target.kind != PlanTarget::Kind::Page || title.Empty()) continue;
    ++marks[bookmark.target.page];
    marked[bookmark.target.page] = title;
  }
  for (int page = 1; page <= Sheets(); ++page) {
    Sheet& sheet = sheets_[static_cast<size_t>(page) - 1];
    sheet.label = guide_.labels.value(page - 1);
    if (!sheet.title.number.isEmpty()) continue;
    SheetTitle title = SheetTitleOfLabel(sheet.label);
    if (title.Empty() && marks[page] == 1) title = marked[page];
    if (title.Empty()) continue;
    if (title.name.isEmpty()) title.name = sheet.title.name;
    sheet.title = std::move(title);
  }
}

bool SheetBook::Wait(int milliseconds) {
  Hold(false);
  bool news = false;
  WaitUntil(milliseconds, [&] {
    if (reading_ == nullptr) return true;
    news = Take() || news;
    const std::lock_guard<std::mutex> guard(reading_->mutex);
    return Done() && reading_->working == 0;
  });
  return Take() || news;
}

const std::vector<PageLink>* SheetBook::LinksOf(int page) {
  if (const auto found = links_.find(page); found != links_.end()) return &found->second;
  const std::shared_ptr<EnginePlan> plan = plan_.lock();
  if (plan == nullptr || reading_ == nullptr || linksAsked_ == page) return nullptr;
  linksAsked_ = page;
  {
    const std::lock_guard<std::mutex> guard(reading_->mutex);
    ++reading_->working;
  }
  thread_->Post([plan, page, reading = reading_] {
    std::vector<PageLink> links = plan->ReadLinks(page);
    {
      const std::lock_guard<std::mutex> guard(reading->mutex);
      reading->links[page] = std::move(links);
      --reading->working;
    }
    reading->Tell();
  });
  return nullptr;
}

void SheetBook::ShowLayers(const std::vector<bool>& shown) {
  const std::shared_ptr<EnginePlan> plan = plan_.lock();
  if (plan == nullptr || reading_ == nullptr) return;
  for (size_t i = 0; i < guide_.layers.size() && i < shown.size(); ++i)
    guide_.layers[i].shown = shown[i];
  {
    const std::lock_guard<std::mutex> guard(reading_->mutex);
    ++reading_->working;
  }
  thread_->Post([plan, shown, reading = reading_] {
    const bool good = plan->ShowLayers(shown);
    {
      const std::lock_guard<std::mutex> guard(reading->mutex);
      reading->layers = good ? LayersDone::Shown : LayersDone::Failed;
      --reading->working;
    }
    reading->Tell();
  });
}

SheetBook::LayersDone SheetBook::TakeLayersDone() {
  if (reading_ == nullptr) return LayersDone::No;
  const std::lock_guard<std::mutex> guard(reading_->mutex);
  return std::exchange(reading_->layers, LayersDone::No);
}

}  // namespace tamo
