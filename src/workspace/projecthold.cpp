#include "workspace/projecthold.h"

#include <algorithm>

#include "common/failure.h"
#include "common/paths.h"
#include "records/datafolder.h"
#include "records/projectfolders.h"
#include "workspace/holdwords.h"

namespace tamo {
namespace {

// Two programs that take a sign left behind at the same moment get another try, no more.
constexpr int kMostTries = 3;

}  // namespace

ProjectHold::ProjectHold(const Kit& kit) : kit_(kit), me_(BeginRun()) {
  kit_.files.mayWrite = [this](const QString& path) {
    if (!MayWrite(path)) return false;
    if (state_ != State::None) MakeFolderOfProjectAgain(kit_.files, path);
    return true;
  };
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

bool ProjectHold::NeedWritable() {
  if (state_ == State::Mine) RenewIfDue(held_, kPatience);
  SayLost();
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
  Take();
}

void ProjectHold::Leave() {
  if (state_ == State::None) return;
  if (state_ != State::Unsigned && !WaitingBelow(held_.folder).isEmpty()) {
    held_.lost = held_.lost || state_ == State::Theirs;
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

void ProjectHold::Take() {
  Disk& disk = kit_.files.GetDisk();
  InUse sign;
  for (int tries = 0; tries < kMostTries; ++tries) {
    const int error = TakeInUse(disk, held_.path, me_, kit_.platform.clock.Now());
    if (error == kNoError) return Become(State::Mine);
    if (error != kFileExists) return BecomeUnsigned(error);
    const int reading = ReadInUse(disk, held_.path, sign);
    if (reading == kFileNotFound) continue;  // it left at this very moment
    if (reading == kNoError && sign.owner == me_) return Become(State::Mine);
    if (reading != kNoError || !Gone(sign)) return BecomeTheirs(sign);
    if (!TakeFrom(sign)) return;
  }
  ReadInUse(disk, held_.path, sign);
  BecomeTheirs(sign);
}

// Takes the sign away so that this program can set its own. False: it can't be taken away, and the
// state says so.
bool ProjectHold::TakeFrom(const InUse& sign) {
  const int error = BreakInUse(kit_.files.GetDisk(), held_.path, sign, me_);
  if (error == kNoError || error == kFileExists || error == kFileNotFound) return true;
  BecomeUnsigned(error);
  return false;
}

void ProjectHold::Become(State state) {
  const State before = state_;
  state_ = state;
  held_.renewed = kit_.platform.clock.Now();
  held_.lost = false;
  if (state == State::None) held_ = {};
  Say({}, {});
  if (before != State::Theirs || state == State::None) return;
  AskAboutWaiting();
  if (onFree) onFree();
}

void ProjectHold::BecomeTheirs(const InUse& sign) {
  state_ = State::Theirs;
  seen_ = sign.bytes;
  watched_ = 0;
  lookedAt_ = kit_.platform.clock.Now();
  declined_ = false;
  Say(ReadOnlyText(sign, lookedAt_), ReadOnlyTitle(sign));
}

// Without a folder there is nothing to guard; without the right to write there nobody writes.
void ProjectHold::BecomeUnsigned(int error) {
  Become(State::Unsigned);
  if (error != kFileNotFound && error != kPathNotFound) Say({}, UnsignedTitle());
}

// It was read while another program had it, and now its folder is gone. Nothing is written there
// as if it were a new one.
void ProjectHold::BecomeGone() {
  seen_.clear();
  Say(GoneText(), GoneTitle());
}

void ProjectHold::Say(const QString& readOnly, const QString& title) {
  SharedFields& shared = kit_.shared;
  if (shared.ReadOnly == readOnly && shared.TitleNote == title) return;
  shared.ReadOnly = readOnly;
  shared.TitleNote = title;
  if (onChange) onChange();
}

}  // namespace tamo
