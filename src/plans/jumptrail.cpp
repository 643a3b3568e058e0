#include "plans/jumptrail.h"

namespace tamo {
namespace {

constexpr size_t kLongest = 500;

}  // namespace

void JumpTrail::Clear() {
  back_.clear();
  ahead_.clear();
}

void JumpTrail::Leave(const SheetPlace& from) {
  ahead_.clear();
  if (!back_.empty() && back_.back() == from) return;
  back_.push_back(from);
  if (back_.size() > kLongest) back_.erase(back_.begin());
}

std::optional<SheetPlace> JumpTrail::Step(std::vector<SheetPlace>& from,
                                          std::vector<SheetPlace>& to, const SheetPlace& now) {
  while (!from.empty() && from.back() == now) from.pop_back();
  if (from.empty()) return std::nullopt;
  to.push_back(now);
  const SheetPlace place = from.back();
  from.pop_back();
  return place;
}

}  // namespace tamo
