#include "plans/formsqueue.h"

#include <QMetaObject>
#include <QObject>
#include <deque>
#include <mutex>
#include <utility>

namespace tamo {

struct FormsQueue::State {
  std::mutex mutex;
  std::unique_ptr<QObject> anchor = std::make_unique<QObject>();  // null when the queue is gone
  std::deque<News> news;
};

FormsQueue::FormsQueue() : state_(std::make_shared<State>()) {}

FormsQueue::~FormsQueue() {
  const std::lock_guard<std::mutex> guard(state_->mutex);
  state_->anchor.reset();
  state_->news.clear();
}

std::function<void(FormsQueue::News)> FormsQueue::Poster() const {
  return [state = state_](News news) {
    const std::lock_guard<std::mutex> guard(state->mutex);
    if (state->anchor == nullptr) return;
    state->news.push_back(std::move(news));
    if (state->news.size() > 1) return;  // its hand-over is on its way
    QMetaObject::invokeMethod(
        state->anchor.get(), [state] { HandOver(state); }, Qt::QueuedConnection);
  };
}

bool FormsQueue::Run() {
  return HandOver(state_);
}

bool FormsQueue::HandOver(const std::shared_ptr<State>& state) {
  std::deque<News> news;
  {
    const std::lock_guard<std::mutex> guard(state->mutex);
    news.swap(state->news);
  }
  for (const News& one : news) {
    // What one of them brought about may have ended the queue.
    if (const std::lock_guard<std::mutex> guard(state->mutex); state->anchor == nullptr) break;
    one();
  }
  return !news.empty();
}

}  // namespace tamo
