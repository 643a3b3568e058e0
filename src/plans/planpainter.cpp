#include "plans/planpainter.h"

#include <algorithm>
#include <utility>

#include "plans/painterstate.h"

namespace tamo {
namespace {

using State = PlanPainter::State;

constexpr size_t kMostWanted = 200;
constexpr auto kMeanwhile = std::chrono::milliseconds(8);

// The whole work of a thread. It owns what it stands on, so it can end after the painter is gone.
class Worker {
 public:
  Worker(std::shared_ptr<State> state, bool reads) : state_(std::move(state)), reads_(reads) {}

  void Loop() {
    std::unique_lock<std::mutex> lock(state_->mutex);
    while (!state_->end) {
      PaintJob job = state_->Next(reads_);
      if (job.kind == PaintJob::Kind::None) {
        state_->wake.wait_for(lock, std::chrono::seconds(1));
        state_->StopOverdue();
        continue;
      }
      state_->working.push_back(&job);
      lock.unlock();
      Do(job);
      lock.lock();
      std::erase(state_->working, &job);
      state_->Done(job, std::move(loaded_), std::exchange(picture_, nullptr));
      state_->wake.notify_all();
      state_->news.notify_all();
      const auto changed = state_->onChanged;
      lock.unlock();
      job = {};
      if (changed) changed();
      lock.lock();
    }
    --state_->running;
    state_->news.notify_all();
  }

 private:
  void Do(const PaintJob& job) {
    if (job.list == nullptr) {
      loaded_ = state_->plan->LoadPage(job.page, *job.cancel);
      return;
    }
    if (job.part.width <= 0 || job.part.height <= 0) return;
    auto picture = std::make_shared<Picture>();
    picture->width = job.part.width;
    picture->height = job.part.height;
    picture->pixels.resize(static_cast<size_t>(picture->width) *
                           static_cast<size_t>(picture->height));
    if (state_->plan->Paint(*job.list, job.part, *job.cancel, picture->pixels.data()))
      picture_ = picture;
  }

  std::shared_ptr<State> state_;
  bool reads_;  // or only paints
  std::shared_ptr<LoadedPage> loaded_;
  std::shared_ptr<const Picture> picture_;
};

}  // namespace

PlanPainter::PlanPainter(std::shared_ptr<EnginePlan> plan, std::vector<PageSize> sizes,
                         std::function<void()> onChanged)
    : state_(std::make_shared<State>()) {
  state_->plan = std::move(plan);
  state_->sizes = std::move(sizes);
  state_->onChanged = std::move(onChanged);
  state_->running = 2;
  for (const bool reads : {true, false}) {
    threads_.emplace_back([state = state_, reads] { Worker(state, reads).Loop(); });
  }
}

PlanPainter::~PlanPainter() {
  std::unique_lock<std::mutex> lock(state_->mutex);
  state_->end = true;
  state_->onChanged = nullptr;
  for (PaintJob* job : state_->working) job->cancel->Cancel();
  state_->wake.notify_all();
  const bool ended = state_->news.wait_for(lock, std::chrono::milliseconds(4),
                                           [this] { return state_->running == 0; });
  lock.unlock();
  for (std::thread& thread : threads_) {
    if (ended) {
      thread.join();
    } else {
      thread.detach();
    }
  }
}

void PlanPainter::Look(const PlanView& view) {
  const std::lock_guard<std::mutex> guard(state_->mutex);
  state_->view = Sane(view);
  state_->looking = true;
  ++state_->clock;
  state_->coarse.LookAt(state_->view.page);
  for (const TileKey& key : state_->VisibleTiles(state_->view)) {
    if (const auto tile = state_->tiles.find(key); tile != state_->tiles.end()) {
      tile->second.used = state_->clock;
    }
  }
  state_->StopStale();
  state_->StopOverdue();
  state_->wake.notify_all();
}

std::vector<PlacedPicture> PlanPainter::PicturesFor(const PlanView& asked) {
  std::vector<PlacedPicture> pictures;
  const PlanView view = Sane(asked);
  const std::lock_guard<std::mutex> guard(state_->mutex);
  for (int half = 0; half < 2; ++half) {
    if (auto placed = state_->PlacedCoarse(view, half); placed.picture != nullptr)
      pictures.push_back(std::move(placed));
  }
  for (const TileKey& key : state_->VisibleTiles(view)) {
    const auto tile = state_->tiles.find(key);
    if (tile == state_->tiles.end()) continue;
    const PixelRect& at = tile->second.covered;
    pictures.push_back({double(at.left), double(at.top), double(at.right - at.left),
                        double(at.bottom - at.top), tile->second.picture});
  }
  return pictures;
}

std::shared_ptr<const Picture> PlanPainter::Thumbnail(int page, int longSide) {
  const std::lock_guard<std::mutex> guard(state_->mutex);
  if (page < 1 || static_cast<size_t>(page) > state_->sizes.size()) return nullptr;
  const SmallKey key = {page, std::clamp(longSide, 16, 1024)};
  if (auto there = state_->thumbnails.Find(key)) return there;
  auto& wanted = state_->wantedThumbnails;
  if (state_->failed.count(page) == 0 &&
      std::find(wanted.begin(), wanted.end(), key) == wanted.end()) {
    wanted.push_back(key);
    // Those asked for long ago have been scrolled away.
    if (wanted.size() > kMostWanted) {
      state_->smallLists.erase(wanted.front().page);
      wanted.pop_front();
    }
    state_->wake.notify_all();
  }
  return nullptr;
}

// What is called meanwhile may end the painter.
std::shared_ptr<const Picture> PlanPainter::PrintPicture(const PlanView& part, int milliseconds,
                                                         const std::function<void()>& meanwhile) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds);
  const std::shared_ptr<State> state = state_;
  const auto job = std::make_shared<PrintJob>();
  job->part = Sane(part);
  std::unique_lock<std::mutex> lock(state->mutex);
  if (state->failed.count(job->part.page) != 0) return nullptr;
  state->prints.push_back(job);
  state->wake.notify_all();
  while (!job->done && !state->end && std::chrono::steady_clock::now() < end) {
    state->news.wait_for(lock, kMeanwhile, [&] { return job->done; });
    if (job->done || !meanwhile) continue;
    lock.unlock();
    meanwhile();
    lock.lock();
  }
  std::erase(state->prints, job);
  return job->picture;
}

bool PlanPainter::WaitUntilSharp(int milliseconds) {
  std::unique_lock<std::mutex> lock(state_->mutex);
  return state_->news.wait_for(lock, std::chrono::milliseconds(milliseconds),
                               [this] { return state_->Sharp(); });
}

bool PlanPainter::WaitForCoarse(int milliseconds) {
  std::unique_lock<std::mutex> lock(state_->mutex);
  return state_->news.wait_for(lock, std::chrono::milliseconds(milliseconds), [this] {
    return state_->coarse.Whole(state_->view.page) || state_->failed.count(state_->view.page) != 0;
  });
}

std::vector<int> PlanPainter::TakeFailedPages() {
  const std::lock_guard<std::mutex> guard(state_->mutex);
  return std::exchange(state_->failedNews, {});
}

// Once for each page that is looked at, and again when more turns out to be missing.
void PlanPainter::State::NoteGaps(int page, PageGaps gaps) {
  if (gaps.None() || page != view.page || gaps == gapsTold[page]) return;
  gapsTold[page] = gaps;
  gapsNews[page] = gaps;
}

std::map<int, PageGaps> PlanPainter::TakeGaps() {
  const std::lock_guard<std::mutex> guard(state_->mutex);
  return std::exchange(state_->gapsNews, {});
}

}  // namespace tamo
