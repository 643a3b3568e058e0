#include "plans/newspost.h"

#include <QMetaObject>
#include <QObject>
#include <mutex>
#include <utility>

namespace tamo {

struct NewsPost::State {
  std::mutex mutex;
  std::unique_ptr<QObject> anchor = std::make_unique<QObject>();
  std::function<void()> handler;
  bool posted = false;
};

NewsPost::NewsPost(std::function<void()> handler) : state_(std::make_shared<State>()) {
  state_->handler = std::move(handler);
}

NewsPost::~NewsPost() {
  const std::lock_guard<std::mutex> guard(state_->mutex);
  state_->anchor.reset();
}

std::function<void()> NewsPost::Teller() const {
  return [state = state_] {
    const std::lock_guard<std::mutex> guard(state->mutex);
    if (state->anchor == nullptr || std::exchange(state->posted, true)) return;
    QMetaObject::invokeMethod(
        state->anchor.get(),
        [state] {
          {
            const std::lock_guard<std::mutex> inner(state->mutex);
            state->posted = false;
          }
          state->handler();
        },
        Qt::QueuedConnection);
  };
}

}  // namespace tamo
