#include "reports/systemsahead.h"

#include <algorithm>
#include <new>
#include <thread>
#include <utility>

#include "common/failure.h"
#include "common/paths.h"
#include "records/linecolumns.h"
#include "reports/reportmemory.h"

namespace tamo {
namespace {

constexpr int kGlances = 100;  // at a system that is being read, before the asking thread sleeps
constexpr int kLargestStride = 16;

}  // namespace

SystemsAhead::SystemsAhead(const ReportSource& source)
    : source_(source), takesApart_(source.memory == nullptr || !source.memory->KnowsSystems()) {}

SystemsAhead::Slot& SystemsAhead::SlotOf(QStringView name, bool& isNew) {
  const std::lock_guard lock(mutex_);
  int at = names_.Find(name);
  isNew = at < 0;
  if (isNew) {
    const auto count = static_cast<size_t>(names_.Count());
    if (slots_.size() == count) slots_.push_back(std::make_unique<Slot>());
    at = names_.Add(name);
  }
  return *slots_[static_cast<size_t>(at)];
}

void SystemsAhead::Look(LineScanner lines, const std::atomic<bool>& stopped) {
  if (++sheets_ % stride_ != 0) return;
  bool anyNew = false;
  QStringView line;
  while (!stopped && waiting_ < kMost && lines.Next(line)) anyNew |= ReadNew(line);
  stride_ = anyNew ? 1 : std::min(2 * stride_, kLargestStride);
}

bool SystemsAhead::ReadNew(QStringView line) {
  if (lines_.Find(line) >= 0) return false;
  lines_.Keep(line, 0);
  const QStringView name = SystemOfLine(line);
  if (seen_.Find(name) >= 0) return false;
  seen_.Add(name);
  bool isNew = false;
  Slot& slot = SlotOf(name, isNew);
  if (isNew) Read(name.toString(), slot);
  return true;
}

void SystemsAhead::Read(const QString& name, Slot& slot) {
  try {
    SystemAhead& found = slot.found;
    if (NameRefusal(name).isEmpty()) {
      found.path = source_.project.SystemFile(name);
      slot.whole = source_.files.ReadStored(found.path, found.text) == kNoError;
    }
    if (slot.whole && takesApart_)
      found.system = std::make_shared<const PricedSystem>(PricedSystemOf(found.text));
  } catch (const RunTimeFailure&) {  // a figure that no number holds
  } catch (const std::bad_alloc&) {
    slot.whole = false;
  }
  waiting_ += slot.found.text.size();
  slot.done = true;
  slot.done.notify_one();
}

// A save that waits is read from memory, and reading well makes a former failure good.
bool SystemsAhead::NothingPending() const {
  return source_.files.PendingSaves().empty() && source_.files.ReadFailures().empty();
}

bool SystemsAhead::Take(const QString& name, SystemAhead& system) {
  bool isNew = false;
  Slot& slot = SlotOf(name, isNew);
  if (isNew) return false;
  for (int i = 0; i < kGlances && !slot.done; ++i) std::this_thread::yield();
  slot.done.wait(false);
  waiting_ -= slot.found.text.size();
  if (!slot.whole || !NothingPending()) {
    slot.found = {};
    return false;
  }
  system = std::exchange(slot.found, {});
  return true;
}

}  // namespace tamo
