#include "workspace/projecthold.h"

#include <algorithm>

#include "common/failure.h"
#include "common/paths.h"
#include "records/datafolder.h"
#include "workspace/holdwords.h"

namespace tamo {
namespace {

// Two programs that take a sign left behind at the same moment get another try, no more.
constexpr int kMostTries = 3;

}  // namespace

ProjectHold::ProjectHold(const Kit& kit) : kit_(kit), me_(BeginRun()) {
  kit_.files.mayWrite = [this](const QString& path) { return MayWrite(path); };
}

ProjectHold::~ProjectHold() {
  onChange = nullptr;
  kit_.files.mayWrite = nullptr;
  End();
  EndRun(me_);
}

bool ProjectHold::Here(const InUse& sign) const {
  return sign.Whole() && sign.owner.machineId == me_.machineId;
}

bool ProjectHold::Gone(const InUse& sign) const {
  return Here(sign) && RunIsGone(sign.owner);
}

bool ProjectHold::NeedWritable() const {
  if (!ReadOnly()) return true;
  kit_.desk.GetMessages().Tell(kit_.shared.ReadOnly);
  return false;
}

void ProjectHold::Open() {
  const ProjectFolder project(kit_.shared);
  if (state_ != State::None && held_.path == project.InUse()) return;
  Leave();
  held_ = {project.InUse(), project.Path(), {}};
  std::erase_if(kept_, [&](const Held& kept) { return kept.path == held_.path; });
  Take(true);
}

void ProjectHold::Leave() {
  if (state_ == State::None) return;
  if (state_ == State::Mine && WaitsBelow(held_.folder)) {
    kept_.push_back(held_);
  } else if (state_ == State::Mine) {
    ReleaseInUse(kit_.files.GetDisk(), held_.path, me_);
  }
  Become(State::None);
}

void ProjectHold::End() {
  for (const Held& kept : kept_) ReleaseInUse(kit_.files.GetDisk(), kept.path, me_);
  kept_.clear();
  if (state_ == State::Mine) ReleaseInUse(kit_.files.GetDisk(), held_.path, me_);
  if (state_ != State::None) Become(State::None);
}

void ProjectHold::Take(bool mayAsk) {
  Disk& disk = kit_.files.GetDisk();
  for (int tries = 0; tries < kMostTries; ++tries) {
    const int error = TakeInUse(disk, held_.path, me_, kit_.platform.clock.Now());
    if (error == kNoError) return Become(State::Mine);
    if (error != kFileExists) return BecomeUnsigned(error);
    InUse sign;
    const int reading = ReadInUse(disk, held_.path, sign);
    if (reading == kFileNotFound) continue;  // it left at this very moment
    if (reading == kNoError && sign.owner == me_) return Become(State::Mine);
    if (reading != kNoError || !TakeFrom(sign, mayAsk)) return BecomeTheirs(sign);
  }
  InUse sign;
  ReadInUse(disk, held_.path, sign);
  BecomeTheirs(sign);
}

// True when the sign was taken away, so that this program can set its own.
bool ProjectHold::TakeFrom(const InUse& sign, bool mayAsk) {
  bool may = Gone(sign);
  if (!may && mayAsk && sign.Whole() && !Here(sign)) {
    const QDateTime now = kit_.platform.clock.Now();
    const QDateTime last = sign.renewed.isValid() ? sign.renewed : sign.taken;
    may = last.secsTo(now) >= kLongAgo && kit_.desk.GetMessages().Ask(TakeOverQuestion(sign, now));
  }
  return may && BreakInUse(kit_.files.GetDisk(), held_.path, sign, me_) != kFileExists;
}

void ProjectHold::Become(State state) {
  const State before = state_;
  state_ = state;
  held_.renewed = kit_.platform.clock.Now();
  if (state == State::None) held_ = {};
  Say({}, {});
  if (before == State::Theirs && state == State::Mine && onFree) onFree();
}

void ProjectHold::BecomeTheirs(const InUse& sign) {
  state_ = State::Theirs;
  seen_ = sign.bytes;
  seenAt_ = kit_.platform.clock.Now();
  declined_ = false;
  Say(ReadOnlyText(sign, seenAt_), ReadOnlyTitle(sign));
}

// Without a folder there is nothing to guard; without the right to write there nobody writes.
void ProjectHold::BecomeUnsigned(int error) {
  state_ = State::Unsigned;
  held_.renewed = kit_.platform.clock.Now();
  const bool missing = error == kFileNotFound || error == kPathNotFound;
  Say({}, missing ? QString()
                  : QStringLiteral("other programs can't be told that this project is open"));
}

void ProjectHold::Say(const QString& readOnly, const QString& title) {
  SharedFields& shared = kit_.shared;
  if (shared.ReadOnly == readOnly && shared.TitleNote == title) return;
  shared.ReadOnly = readOnly;
  shared.TitleNote = title;
  if (onChange) onChange();
}

}  // namespace tamo
