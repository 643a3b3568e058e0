#include "engine/engineserver.h"

#include <utility>

#include "common/failure.h"
#include "plans/wireguide.h"

namespace tamo {
namespace {

constexpr size_t kMostPagesHeld = 64;

template <typename Answer>
QByteArray Said(const Answer& answer) {
  WireWriter out;
  Put(out, answer);
  return out.Take();
}

}  // namespace

std::shared_ptr<EnginePlan> EngineServer::Plan() {
  const std::lock_guard<std::mutex> guard(mutex_);
  return plan_;
}

void EngineServer::Send(WireKind kind, uint32_t call, const QByteArray& body) {
  const std::lock_guard<std::mutex> guard(sending_);
  send({kind, call, body});
}

// --- Messages

bool EngineServer::Take(const WireMessage& message) {
  std::shared_ptr<CancelFlag> stopped;
  std::shared_ptr<LoadedPage> dropped;
  const std::lock_guard<std::mutex> guard(mutex_);
  WireReader wire(message.body);
  switch (message.kind) {
    case WireKind::Cancel:
      if (const auto found = working_.find(message.call); found != working_.end())
        stopped = found->second;
      if (stopped != nullptr) stopped->Cancel();
      return true;
    case WireKind::Drop:
      if (const auto found = pages_.find(message.call); found != pages_.end()) {
        dropped = std::move(found->second);
        pages_.erase(found);
      }
      return true;
    case WireKind::GoOn:
      goOn_[message.call] = static_cast<int>(wire.Number(0, 100000));
      mayGoOn_.notify_all();
      return wire.AtEnd();
    case WireKind::Answer:
    case WireKind::Part:
      return false;
    default:
      break;
  }
  const auto cancel = std::make_shared<CancelFlag>();
  working_[message.call] = cancel;
  jobs_.push_back({message, cancel});
  return true;
}

bool EngineServer::WorkOnce() {
  Job job;
  {
    const std::lock_guard<std::mutex> guard(mutex_);
    if (jobs_.empty()) return false;
    job = std::move(jobs_.front());
    jobs_.pop_front();
  }
  Do(job);
  return true;
}

void EngineServer::Work() {
  for (;;) {
    {
      const std::lock_guard<std::mutex> guard(receiving_);
      WireMessage message;
      if (!receive(message) || !Take(message)) return;
    }
    // Who heard of it does it: nobody has to be woken.
    WorkOnce();
  }
}

void EngineServer::Do(const Job& job) {
  WireReader wire(job.message.body);
  const QByteArray answer = AnswerTo(job, wire);
  {
    const std::lock_guard<std::mutex> guard(mutex_);
    working_.erase(job.message.call);
  }
  Send(WireKind::Answer, job.message.call, answer);
}

QByteArray EngineServer::AnswerTo(const Job& job, WireReader& wire) {
  if (job.message.kind == WireKind::Open) return Open(wire);
  if (Plan() == nullptr) return {};
  switch (job.message.kind) {
    case WireKind::LoadPage:
      return LoadPage(job, wire);
    case WireKind::Paint:
      return Paint(job, wire);
    case WireKind::ReadContent:
    case WireKind::ReadTexts:
      return ReadContent(job, wire);
    case WireKind::ReadGuide:
      return Said(Plan()->ReadGuide());
    case WireKind::ReadLinks:
      return ReadLinks(wire);
    case WireKind::ShowLayers:
      return ShowLayers(wire);
    case WireKind::BuildUpdate:
      return BuildUpdate(wire);
    case WireKind::ForgetUpdate:
      Plan()->ForgetUpdate();
      return {};
    case WireKind::WriteWhole:
      return WriteWhole(job.message.call);
    default:
      return {};
  }
}

// --- Calls

QByteArray EngineServer::Open(WireReader& wire) {
  const qint64 size = wire.Number();
  const QString password = wire.Text();
  std::shared_ptr<EnginePlan> plan = Plan();
  if (plan == nullptr && wire.AtEnd()) {
    plan = engine_.NewPlan(std::make_shared<PlanSource>(file(size), size));
    const std::lock_guard<std::mutex> guard(mutex_);
    plan_ = plan;
  }
  PlanContents contents;
  if (plan != nullptr) {
    contents = plan->Open(password);
  } else {
    contents.error = kFileOther;
    contents.problem = QStringLiteral("there is not enough memory");
  }
  WireWriter out;
  out.Flag(guard.calls);
  out.Flag(guard.files);
  Put(out, contents);
  return out.Take();
}

QByteArray EngineServer::LoadPage(const Job& job, WireReader& wire) {
  const int page = static_cast<int>(wire.Number(1, 1000000));
  std::shared_ptr<LoadedPage> loaded;
  if (wire.AtEnd()) loaded = Plan()->LoadPage(page, *job.cancel);
  WireWriter out;
  out.Flag(loaded != nullptr);
  Put(out, loaded != nullptr ? loaded->Size() : PageSize());
  Put(out, loaded != nullptr ? loaded->Gaps() : PageGaps());
  const std::lock_guard<std::mutex> guard(mutex_);
  if (loaded != nullptr) pages_[job.message.call] = std::move(loaded);
  while (pages_.size() > kMostPagesHeld) pages_.erase(pages_.begin());
  return out.Take();
}

QByteArray EngineServer::Paint(const Job& job, WireReader& wire) {
  const auto call = static_cast<uint32_t>(wire.Number());
  PaintPart part;
  tamo::Take(wire, part);
  const auto slot = static_cast<size_t>(wire.Number(0, kTileSlots - 1));
  const int64_t pixels = int64_t(part.width) * part.height;
  std::shared_ptr<LoadedPage> page;
  {
    const std::lock_guard<std::mutex> guard(mutex_);
    if (const auto found = pages_.find(call); found != pages_.end()) page = found->second;
  }
  bool painted = false;
  if (wire.AtEnd() && page != nullptr && pixels <= kSlotPixels) {
    painted = Plan()->Paint(*page, part, *job.cancel, tiles_ + slot * size_t(kSlotPixels));
  }
  WireWriter out;
  out.Flag(painted);
  Put(out, page != nullptr ? page->Gaps() : PageGaps());
  return out.Take();
}

QByteArray EngineServer::ReadContent(const Job& job, WireReader& wire) {
  const int page = static_cast<int>(wire.Number(1, 1000000));
  if (!wire.AtEnd()) return {};
  const bool texts = job.message.kind == WireKind::ReadTexts;
  return Said(texts ? Plan()->ReadTexts(page, *job.cancel)
                    : Plan()->ReadContent(page, *job.cancel));
}

QByteArray EngineServer::ReadLinks(WireReader& wire) {
  const int page = static_cast<int>(wire.Number(1, 1000000));
  return wire.AtEnd() ? Said(Plan()->ReadLinks(page)) : QByteArray();
}

QByteArray EngineServer::ShowLayers(WireReader& wire) {
  std::vector<bool> shown;
  tamo::Take(wire, shown);
  WireWriter out;
  out.Flag(wire.AtEnd() && Plan()->ShowLayers(shown));
  return out.Take();
}

QByteArray EngineServer::BuildUpdate(WireReader& wire) {
  MarkChanges changes;
  tamo::Take(wire, changes);
  if (!wire.AtEnd()) return {};
  WireWriter out;
  Put(out, Plan()->BuildUpdate(changes));
  return out.Take();
}

int EngineServer::HandPart(uint32_t call, const QByteArray& part) {
  Send(WireKind::Part, call, part);
  std::unique_lock<std::mutex> lock(mutex_);
  mayGoOn_.wait(lock, [&] { return goOn_.count(call) != 0; });
  const int error = goOn_[call];
  goOn_.erase(call);
  return error;
}

QByteArray EngineServer::WriteWhole(uint32_t call) {
  QString problem;
  const int error =
      Plan()->WriteWhole([&](const QByteArray& part) { return HandPart(call, part); }, problem);
  WireWriter out;
  PutOutcome(out, error, problem);
  return out.Take();
}

}  // namespace tamo
