#include "plans/plansource.h"

#include <utility>

namespace tamo {

void PlanSource::Replace(std::shared_ptr<FileReader> reader) {
  const std::lock_guard<std::mutex> guard(mutex_);
  reader_ = std::move(reader);
}

std::shared_ptr<FileReader> PlanSource::Reader() const {
  const std::lock_guard<std::mutex> guard(mutex_);
  return reader_;
}

}  // namespace tamo
