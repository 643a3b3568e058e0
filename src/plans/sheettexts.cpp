#include "plans/sheettexts.h"

#include <chrono>
#include <iterator>
#include <mutex>
#include <thread>
#include <utility>

namespace tamo {

namespace {

constexpr auto kPause = std::chrono::milliseconds(20);

}  // namespace

struct SheetTexts::Reading {
  CancelFlag cancel;
  std::function<void(const Sheet& sheet)> onSheet;
  std::function<bool()> mayRead;
  std::mutex mutex;
  std::vector<Line> lines;  // not taken yet
  int read = 0;
  int failed = 0;
};

void SheetTexts::Read(const std::shared_ptr<EnginePlan>& plan, int pages, int first,
                      const std::shared_ptr<Reading>& reading) {
  for (int i = 0; i < pages && !reading->cancel.Cancelled(); ++i) {
    while (reading->mayRead && !reading->mayRead() && !reading->cancel.Cancelled())
      std::this_thread::sleep_for(kPause);
    const int page = (first - 1 + i) % pages + 1;
    const PageContent content = plan->ReadTexts(page, reading->cancel);
    if (reading->cancel.Cancelled()) return;
    Sheet sheet = {page, content.size, TextLinesOf(content), content.whole};
    if (reading->onSheet) reading->onSheet(sheet);
    std::vector<Line> lines;
    for (PageTextLine& line : sheet.lines) {
      if (!reading->onSheet) lines.push_back({page, std::move(line.text), line.box});
    }
    const std::lock_guard<std::mutex> guard(reading->mutex);
    std::move(lines.begin(), lines.end(), std::back_inserter(reading->lines));
    ++reading->read;
    if (!content.whole) ++reading->failed;
  }
}

void SheetTexts::Want(const std::shared_ptr<EnginePlan>& plan, int pages, int first) {
  if (reading_ != nullptr && plan != nullptr && plan_.lock() == plan) return;
  Drop();
  if (plan == nullptr) return;
  plan_ = plan;
  pages_ = pages;
  reading_ = std::make_shared<Reading>();
  reading_->onSheet = onSheet;
  reading_->mayRead = mayRead;
  if (thread_ == nullptr) thread_ = std::make_unique<WorkThread>();
  thread_->Post([plan, pages, first, reading = reading_] { Read(plan, pages, first, reading); });
}

void SheetTexts::Drop() {
  if (reading_ != nullptr) reading_->cancel.Cancel();
  reading_.reset();
  plan_.reset();
  lines_.clear();
  pages_ = sheetsRead_ = sheetsFailed_ = 0;
}

bool SheetTexts::Take() {
  if (reading_ == nullptr) return false;
  const std::lock_guard<std::mutex> guard(reading_->mutex);
  if (sheetsRead_ == reading_->read) return false;
  std::move(reading_->lines.begin(), reading_->lines.end(), std::back_inserter(lines_));
  reading_->lines.clear();
  sheetsRead_ = reading_->read;
  sheetsFailed_ = reading_->failed;
  return true;
}

}  // namespace tamo
