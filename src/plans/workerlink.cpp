#include "plans/workerlink.h"

#include <chrono>
#include <utility>

namespace tamo {
namespace {

using Clock = std::chrono::steady_clock;
constexpr auto kCancelPatience = std::chrono::milliseconds(1000);
constexpr qsizetype kMostParts = 4;  // a worker sends the next when the last was taken

}  // namespace

// A call that somebody waits for.
struct WorkerLink::Waiting {
  std::condition_variable news;
  bool answered = false;
  bool cancelled = false;
  bool cancelSent = false;
  QByteArray answer;
  std::vector<QByteArray> parts;
};

std::shared_ptr<WorkerLink> WorkerLink::To(std::unique_ptr<WorkerProcess> process) {
  return {new WorkerLink(std::move(process)),
          [](WorkerLink* link) { std::thread([link] { delete link; }).detach(); }};
}

WorkerLink::WorkerLink(std::unique_ptr<WorkerProcess> process) : process_(std::move(process)) {
  listener_ = std::thread([this] { Listen(); });
}

WorkerLink::~WorkerLink() {
  Kill();
  listener_.join();
}

void WorkerLink::Listen() {
  WireMessage message;
  while (ReceiveMessage(process_->Socket(), message) && Take(message)) continue;
  Kill();
  const std::lock_guard<std::mutex> guard(mutex_);
  gone_ = true;
  for (const auto& [call, waiting] : waiting_) waiting->news.notify_all();
  slotFree_.notify_all();
}

// False when the worker lies.
bool WorkerLink::Take(WireMessage& message) {
  const std::lock_guard<std::mutex> guard(mutex_);
  if (message.kind != WireKind::Answer && message.kind != WireKind::Part) return false;
  const bool last = message.kind == WireKind::Answer;
  const auto left = leftSlots_.find(message.call);
  if (last && left != leftSlots_.end()) {
    if (left->second >= 0) slotTaken_[left->second] = false;
    leftSlots_.erase(left);
    dropped_.push_back(message.call);  // a page that it read after all is held for nobody
    slotFree_.notify_one();
  }
  const auto found = waiting_.find(message.call);
  if (found != waiting_.end()) {
    Waiting& waiting = *found->second;
    if (last) {
      waiting.answered = true;
      waiting.answer = std::move(message.body);
    } else {
      waiting.parts.push_back(std::move(message.body));
      if (qsizetype(waiting.parts.size()) > kMostParts) return false;
    }
    waiting.news.notify_one();
  }
  return true;
}

void WorkerLink::Send(WireKind kind, uint32_t call, const QByteArray& body) {
  const std::lock_guard<std::mutex> guard(sending_);
  if (!SendMessage(process_->Socket(), {kind, call, body})) Kill();
}

void WorkerLink::SendDropped() {
  std::vector<uint32_t> dropped;
  {
    const std::lock_guard<std::mutex> guard(mutex_);
    dropped.swap(dropped_);
  }
  for (const uint32_t call : dropped) Send(WireKind::Drop, call, {});
}

void WorkerLink::Drop(uint32_t call) {
  const std::lock_guard<std::mutex> guard(mutex_);
  dropped_.push_back(call);
}

bool WorkerLink::Gone() {
  const std::lock_guard<std::mutex> guard(mutex_);
  return gone_;
}

int WorkerLink::TakeSlot() {
  std::unique_lock<std::mutex> lock(mutex_);
  for (;;) {
    if (gone_) return -1;
    for (int slot = 0; slot < kTileSlots; ++slot) {
      if (!std::exchange(slotTaken_[slot], true)) return slot;
    }
    // All are with calls that were given up: the worker hangs.
    const bool hangs = leftSlots_.size() >= size_t(kTileSlots);
    if (slotFree_.wait_for(lock, std::chrono::seconds(5)) == std::cv_status::timeout && hangs) {
      Kill();
    }
  }
}

void WorkerLink::GiveSlot(int slot) {
  const std::lock_guard<std::mutex> guard(mutex_);
  slotTaken_[slot] = false;
  slotFree_.notify_one();
}

WorkerLink::Answer WorkerLink::Call(WireKind kind, const QByteArray& body, const Terms& terms) {
  SendDropped();
  Waiting waiting;
  uint32_t call = 0;
  {
    const std::lock_guard<std::mutex> guard(mutex_);
    call = ++calls_;
    waiting_[call] = &waiting;
  }
  Send(kind, call, body);
  if (terms.cancel != nullptr) {
    terms.cancel->WhenCancelled([this, &waiting] {
      const std::lock_guard<std::mutex> guard(mutex_);
      waiting.cancelled = true;
      waiting.news.notify_one();
    });
  }
  Answer answer = Await(waiting, call, terms);
  if (terms.cancel != nullptr) terms.cancel->WhenCancelled(nullptr);
  return answer;
}

WorkerLink::Answer WorkerLink::Await(Waiting& waiting, uint32_t call, const Terms& terms) {
  std::unique_lock<std::mutex> lock(mutex_);
  auto end = Clock::now() + std::chrono::milliseconds(terms.milliseconds);
  const auto stirs = [&] {
    return waiting.answered || gone_ || !waiting.parts.empty() ||
           (waiting.cancelled && !waiting.cancelSent);
  };
  bool inTime = true;
  while (inTime && !(waiting.answered && waiting.parts.empty()) && !gone_) {
    inTime = waiting.news.wait_until(lock, end, stirs);
    if (!waiting.parts.empty()) {
      HandPart(waiting, call, terms, lock);
    } else if (waiting.cancelled && !std::exchange(waiting.cancelSent, true)) {
      lock.unlock();
      Send(WireKind::Cancel, call, {});
      lock.lock();
      end = std::min(end, Clock::now() + kCancelPatience);
    }
  }
  Answer answer;
  answer.there = waiting.answered;
  answer.gone = gone_ && !waiting.answered;
  answer.left = !gone_ && !waiting.answered;
  answer.late = answer.left && !waiting.cancelled;
  answer.call = call;
  answer.body = waiting.answer;
  waiting_.erase(call);
  if (answer.left) leftSlots_[call] = terms.slot;
  lock.unlock();
  if (answer.late) Kill();
  return answer;
}

void WorkerLink::HandPart(Waiting& waiting, uint32_t call, const Terms& terms,
                          std::unique_lock<std::mutex>& lock) {
  const QByteArray part = std::move(waiting.parts.front());
  waiting.parts.erase(waiting.parts.begin());
  lock.unlock();
  WireWriter wire;
  wire.Number(terms.part ? terms.part(part) : 0);
  Send(WireKind::GoOn, call, wire.Take());
  lock.lock();
}

}  // namespace tamo
