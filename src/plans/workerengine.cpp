#include "plans/workerengine.h"

#include <unistd.h>

#include <atomic>
#include <utility>

#include "plans/workerguard.h"
#include "plans/workerplan.h"

namespace tamo {
namespace {

std::atomic<bool> callsFree = false;
std::atomic<bool> filesFree = false;

}  // namespace

void NoteGuard(const WorkerGuard& guard) {
  if (!guard.calls) callsFree = true;
  if (!guard.files) filesFree = true;
}

QString WorkerEngine::MissingGuards() {
  if (callsFree) {
    return QStringLiteral(
        "This system does not limit what the reader of plans may do: open only plans of people you "
        "know.");
  }
  if (filesFree) {
    return QStringLiteral(
        "This system can't keep the reader of plans from files by itself; the filter of its calls "
        "does.");
  }
  return {};
}

WorkerEngine::WorkerEngine(QByteArray program)
    : workers_(std::make_shared<WorkerSource>(std::move(program))) {}

std::shared_ptr<EnginePlan> WorkerEngine::NewPlan(std::shared_ptr<PlanSource> source) {
  return std::make_shared<WorkerPlan>(workers_, std::move(source));
}

QByteArray WorkerEngine::BesideThisProgram() {
  QByteArray path(4096, '\0');
  const ssize_t length = ::readlink("/proc/self/exe", path.data(), size_t(path.size()));
  if (length <= 0) return "tamo-engine";
  path.truncate(static_cast<qsizetype>(length));
  return path.left(path.lastIndexOf('/') + 1) + "tamo-engine";
}

}  // namespace tamo
