#include "plans/marksteps.h"

#include <algorithm>
#include <utility>

namespace tamo {
namespace {

constexpr size_t kAfterDropping = MarkSteps::kMostBytes / 8 * 7;  // so that it is done seldom

size_t BytesOf(const Mark& mark) {
  return mark.points.size() * sizeof(PagePoint) +
         static_cast<size_t>(mark.label.size() + mark.kept.size()) * sizeof(QChar);
}

size_t BytesOf(const MarkStep& step) {
  return sizeof(MarkStep) + BytesOf(step.mark) + BytesOf(step.before);
}

size_t BytesOf(const std::vector<MarkStep>& steps) {
  size_t bytes = 0;
  for (const MarkStep& step : steps) bytes += BytesOf(step);
  return bytes;
}

}  // namespace

void MarkSteps::Clear() {
  done_.clear();
  undone_.clear();
  drewBefore_.clear();
  bytes_ = 0;
}

const MarkStep& MarkSteps::Add(MarkStep step) {
  bytes_ -= BytesOf(undone_);
  undone_.clear();
  bytes_ += BytesOf(step);
  done_.push_back(std::move(step));
  if (bytes_ > kMostBytes) DropFirst();
  return done_.back();
}

void MarkSteps::DropFirst() {
  size_t last = done_.size() - 1;  // where the last entry begins
  while (last > 0 && done_[last].joined) --last;
  size_t count = 0;
  while (count < last && (bytes_ > kAfterDropping || done_[count].joined)) {
    const MarkStep& step = done_[count++];
    bytes_ -= BytesOf(step);
    if (step.what == MarkStep::What::Added) drewBefore_.insert(step.mark.name);
  }
  done_.erase(done_.begin(), done_.begin() + static_cast<std::ptrdiff_t>(count));
}

void MarkSteps::ChangeLast(const Mark& mark) {
  bytes_ -= BytesOf(undone_) + BytesOf(done_.back());
  undone_.clear();
  done_.back().mark = mark;
  bytes_ += BytesOf(done_.back());
}

const MarkStep* MarkSteps::TakeBack() {
  if (done_.empty()) return nullptr;
  undone_.push_back(std::move(done_.back()));
  done_.pop_back();
  return &undone_.back();
}

const MarkStep* MarkSteps::BringBack() {
  if (undone_.empty()) return nullptr;
  done_.push_back(std::move(undone_.back()));
  undone_.pop_back();
  return &done_.back();
}

bool MarkSteps::Drew(const QString& name) const {
  return drewBefore_.contains(name) ||
         std::any_of(done_.begin(), done_.end(), [&](const MarkStep& step) {
           return step.what == MarkStep::What::Added && step.mark.name == name;
         });
}

void MarkSteps::KeepWith(const QString& name, const QString& kept) {
  const auto keep = [&](Mark& mark) {
    if (mark.name != name) return;
    bytes_ -= BytesOf(mark);
    mark.kept = kept;
    bytes_ += BytesOf(mark);
  };
  for (std::vector<MarkStep>* steps : {&done_, &undone_}) {
    for (MarkStep& step : *steps) {
      keep(step.mark);
      keep(step.before);
    }
  }
}

}  // namespace tamo
