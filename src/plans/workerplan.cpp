#include "plans/workerplan.h"

#include <algorithm>
#include <utility>

#include "common/failure.h"
#include "plans/additioncheck.h"
#include "plans/wireguide.h"
#include "plans/workerguard.h"

namespace tamo {
namespace {

constexpr int kMostStarts = 500;
constexpr int kOpenPatience = 40000;  // milliseconds
constexpr int kPagePatience = 30000;
constexpr int kContentPatience = 60000;
constexpr int kUpdatePatience = 20000;
constexpr int kGuidePatience = 20000;
constexpr int kWholePatience = 120000;
constexpr qsizetype kLongestUpdate = qsizetype(64) << 20;

QString EngineEnded() {
  return QStringLiteral(
      "the part of this program that reads plans ended or took too long over it; it is damaged or "
      "made to do harm");
}

QByteArray Number(int64_t number) {
  WireWriter wire;
  wire.Number(number);
  return wire.Take();
}

}  // namespace

// A page in the worker that read it, or, when that is gone, the page of that number.
class WorkerPlan::Page : public LoadedPage {
 public:
  explicit Page(int number) : number_(number) {}
  ~Page() override {
    if (const Link link = link_.lock()) link->Drop(call_);
  }
  Page(const Page&) = delete;
  Page& operator=(const Page&) = delete;

  int Number() const { return number_; }
  PageSize Size() const override { return size_; }
  PageGaps Gaps() const override {
    const std::lock_guard<std::mutex> guard(mutex_);
    return gaps_;
  }
  void SetGaps(const PageGaps& gaps) const {
    const std::lock_guard<std::mutex> guard(mutex_);
    gaps_ = gaps;
  }
  // The number by which `link` knows it; 0 when it does not.
  uint32_t In(const Link& link) const {
    const std::lock_guard<std::mutex> guard(mutex_);
    return link_.lock() == link ? call_ : 0;
  }
  void IsIn(const Link& link, uint32_t call) const {
    const std::lock_guard<std::mutex> guard(mutex_);
    link_ = link;
    call_ = call;
  }
  void SetSize(PageSize size) { size_ = size; }

 private:
  const int number_;
  PageSize size_;
  mutable std::mutex mutex_;
  mutable PageGaps gaps_;
  mutable std::weak_ptr<WorkerLink> link_;
  mutable uint32_t call_ = 0;
};

WorkerPlan::WorkerPlan(std::shared_ptr<WorkerSource> workers, std::shared_ptr<PlanSource> source)
    : workers_(std::move(workers)), source_(std::move(source)) {}

// --- Workers

WorkerLink::Answer WorkerPlan::OpenIn(const Link& link) {
  WireWriter wire;
  wire.Number(source_->Size());
  wire.Text(password_);
  return link->Call(WireKind::Open, wire.Take(), {kOpenPatience, nullptr, -1, {}});
}

// Brings a new worker to where the last one was.
bool WorkerPlan::Repeat(const Link& link) {
  for (const Update& update : updates_) {
    WireWriter wire;
    Put(wire, update.changes);
    if (!link->Call(WireKind::BuildUpdate, wire.Take(), {kUpdatePatience, nullptr, -1, {}}).there) {
      return false;
    }
  }
  if (layers_.empty()) return true;
  WireWriter wire;
  Put(wire, layers_);
  return link->Call(WireKind::ShowLayers, wire.Take(), {kGuidePatience, nullptr, -1, {}}).there;
}

WorkerPlan::Link WorkerPlan::OpenLink() {
  const std::lock_guard<std::mutex> guard(mutex_);
  if (abandoned_) return nullptr;
  if (link_ != nullptr && !link_->Gone()) return link_;
  link_.reset();
  if (++starts_ > kMostStarts) return nullptr;
  auto process = workers_->Take(*source_->Reader(), source_->Size());
  if (process == nullptr) return nullptr;
  Link link = WorkerLink::To(std::move(process));
  if (starts_ > 1 && (!OpenIn(link).there || !Repeat(link))) return nullptr;
  if (abandoned_) return nullptr;
  link_ = link;
  return link;
}

WorkerLink::Answer WorkerPlan::Ask(const Work& work) {
  for (const bool alone : {false, true}) {
    std::shared_lock<std::shared_mutex> among(lane_, std::defer_lock);
    std::unique_lock<std::shared_mutex> lone(lane_, std::defer_lock);
    if (alone) {
      lone.lock();
    } else {
      among.lock();
    }
    const Link link = OpenLink();
    if (link == nullptr) continue;
    WorkerLink::Answer answer = work(link);
    if (answer.there || answer.late || !answer.gone || abandoned_) return answer;
  }
  return {};
}

pid_t WorkerPlan::Process() {
  const std::lock_guard<std::mutex> guard(mutex_);
  return link_ == nullptr || link_->Gone() ? -1 : link_->Process();
}

void WorkerPlan::Abandon() {
  abandoned_ = true;
  const std::unique_lock<std::mutex> guard(mutex_, std::try_to_lock);
  if (guard.owns_lock() && link_ != nullptr) link_->Kill();
}

// --- Calls

PlanContents WorkerPlan::Open(const QString& password) {
  {
    const std::lock_guard<std::mutex> guard(mutex_);
    password_ = password;
  }
  bool started = false;
  const WorkerLink::Answer answer = Ask([&](const Link& link) {
    started = true;
    return OpenIn(link);
  });
  PlanContents contents;
  WireReader wire(answer.body);
  const WorkerGuard guard{wire.Flag(), wire.Flag()};
  Take(wire, contents);
  const bool said = contents.error == kNoError || !contents.problem.isEmpty();
  if (answer.there && wire.AtEnd() && said) {
    NoteGuard(guard);
    return contents;
  }
  contents = {};
  contents.error = kFileOther;
  contents.problem = started ? EngineEnded()
                             : QStringLiteral(
                                   "the part of this program that reads plans, %1, "
                                   "can't be started")
                                   .arg(QString::fromLocal8Bit(workers_->Program()));
  return contents;
}

WorkerLink::Answer WorkerPlan::LoadIn(const Link& link, int number, CancelFlag& cancel,
                                      Page* page) {
  WorkerLink::Answer answer =
      link->Call(WireKind::LoadPage, Number(number), {kPagePatience, &cancel, -1, {}});
  WireReader wire(answer.body);
  PageSize size;
  PageGaps gaps;
  const bool read = answer.there && wire.Flag();
  Take(wire, size);
  Take(wire, gaps);
  if (!read || !wire.AtEnd()) {
    answer.body.clear();
    return answer;
  }
  page->SetSize(size);
  page->SetGaps(gaps);
  page->IsIn(link, answer.call);
  return answer;
}

std::shared_ptr<LoadedPage> WorkerPlan::LoadPage(int page, CancelFlag& cancel) {
  const auto loaded = std::make_shared<Page>(page);
  const WorkerLink::Answer answer =
      Ask([&](const Link& link) { return LoadIn(link, page, cancel, loaded.get()); });
  return answer.body.isEmpty() ? nullptr : loaded;
}

WorkerLink::Answer WorkerPlan::PaintIn(const Link& link, const Page& page, const PaintPart& part,
                                       CancelFlag& cancel, uint32_t* pixels) {
  WorkerLink::Answer answer;
  if (page.In(link) == 0) {
    Page again(page.Number());
    answer = LoadIn(link, page.Number(), cancel, &again);
    if (answer.body.isEmpty()) return answer;
    page.IsIn(link, again.In(link));
    again.IsIn(nullptr, 0);
  }
  const int slot = link->TakeSlot();
  if (slot < 0) {
    answer = {};
    answer.gone = true;
    return answer;
  }
  WireWriter wire;
  wire.Number(page.In(link));
  Put(wire, part);
  wire.Number(slot);
  answer = link->Call(WireKind::Paint, wire.Take(), {kPagePatience, &cancel, slot, {}});
  WireReader read(answer.body);
  const bool painted = answer.there && read.Flag();
  PageGaps gaps;
  Take(read, gaps);
  if (painted && read.AtEnd()) {
    std::copy_n(link->Slot(slot), size_t(part.width) * size_t(part.height), pixels);
    page.SetGaps(gaps);
  } else {
    answer.body.clear();
  }
  if (!answer.left) link->GiveSlot(slot);
  return answer;
}

// A part that is larger than a slot is painted in strips.
bool WorkerPlan::Paint(const LoadedPage& page, const PaintPart& whole, CancelFlag& cancel,
                       uint32_t* pixels) {
  const auto* loaded = dynamic_cast<const Page*>(&page);
  if (loaded == nullptr || whole.width <= 0 || whole.height <= 0) return false;
  if (whole.width > kSlotPixels) return false;
  const int rows = kSlotPixels / whole.width;
  for (int top = 0; top < whole.height; top += rows) {
    PaintPart part = whole;
    part.top += top;
    part.height = std::min(rows, whole.height - top);
    uint32_t* into = pixels + size_t(top) * size_t(whole.width);
    const WorkerLink::Answer answer =
        Ask([&](const Link& link) { return PaintIn(link, *loaded, part, cancel, into); });
    if (answer.body.isEmpty() || cancel.Cancelled()) return false;
  }
  return true;
}

PageContent WorkerPlan::ReadContent(int page, CancelFlag& cancel) {
  return ReadPage(WireKind::ReadContent, page, cancel);
}

PageContent WorkerPlan::ReadTexts(int page, CancelFlag& cancel) {
  return ReadPage(WireKind::ReadTexts, page, cancel);
}

PageContent WorkerPlan::ReadPage(WireKind kind, int page, CancelFlag& cancel) {
  const WorkerLink::Answer answer = Ask([&](const Link& link) {
    return link->Call(kind, Number(page), {kContentPatience, &cancel, -1, {}});
  });
  PageContent content;
  WireReader wire(answer.body);
  Take(wire, content);
  if (answer.there && wire.AtEnd()) return content;
  content = {};
  content.error = kFileOther;
  content.problem = EngineEnded();
  return content;
}

// Of the file with all that was appended to it.
qint64 WorkerPlan::GrownSize() const {
  qint64 size = source_->Size();
  for (const Update& update : updates_) size += update.bytes;
  return size;
}

PlanUpdate WorkerPlan::BuildUpdate(const MarkChanges& changes) {
  Link built;
  const WorkerLink::Answer answer = Ask([&](const Link& link) {
    built = link;
    WireWriter wire;
    Put(wire, changes);
    return link->Call(WireKind::BuildUpdate, wire.Take(), {kUpdatePatience, nullptr, -1, {}});
  });
  PlanUpdate update;
  WireReader wire(answer.body);
  Take(wire, update);
  const std::lock_guard<std::mutex> guard(mutex_);
  if (answer.there && wire.AtEnd() && update.bytes.size() <= kLongestUpdate) {
    if (update.error != kNoError) return update;
    if (update.bytes.isEmpty() || IsAddition(update.bytes, GrownSize())) {
      updates_.push_back({changes, update.bytes.size()});
      if (link_ != built) link_.reset();  // a worker that has begun meanwhile does not know of it
      return update;
    }
  }
  link_.reset();  // it counts the plan as having what nobody wrote
  return {kFileOther, EngineEnded(), false, {}};
}

void WorkerPlan::ForgetUpdate() {
  Link link;
  {
    const std::lock_guard<std::mutex> guard(mutex_);
    if (!updates_.empty()) updates_.pop_back();
    link = link_;
  }
  // The next worker never hears of it.
  if (link != nullptr) link->Call(WireKind::ForgetUpdate, {}, {kUpdatePatience, nullptr, -1, {}});
}

// What was handed to the sink can't be taken back, so this is not tried again.
int WorkerPlan::WriteWhole(const Sink& sink, QString& problem) {
  const Link link = OpenLink();
  int error = kNoError;
  bool first = true;
  const auto take = [&](const QByteArray& part) {
    if (std::exchange(first, false) && !part.startsWith("%PDF")) error = kFileOther;
    if (error == kNoError) error = sink(part);
    return error;
  };
  WorkerLink::Answer answer;
  if (link != nullptr)
    answer = link->Call(WireKind::WriteWhole, {}, {kWholePatience, nullptr, -1, take});
  if (error != kNoError) return error;
  WireReader wire(answer.body);
  TakeOutcome(wire, error, problem);
  if (answer.there && wire.AtEnd()) return error;
  problem = EngineEnded();
  return kFileOther;
}

}  // namespace tamo
