#include <algorithm>

#include "common/failure.h"
#include "common/paths.h"
#include "workspace/holdwords.h"
#include "workspace/projecthold.h"

// What the hold on a project does as time goes by, and before each save.

namespace tamo {

void ProjectHold::Tick() {
  RenewKept();
  if (state_ == State::None || state_ == State::Theirs) {
    if (state_ == State::Theirs) Watch();
    return;
  }
  if (held_.renewed.secsTo(kit_.platform.clock.Now()) < kRenewal) return;
  if (state_ == State::Mine) {
    Renew();
  } else {
    Take(false);
  }
}

void ProjectHold::Renew() {
  const QDateTime now = kit_.platform.clock.Now();
  const int error = RenewInUse(kit_.files.GetDisk(), held_.path, me_, now);
  if (error == kNoError) held_.renewed = now;
  if (error == kFileNotFound) Take(false);  // a tidy program took it away
  if (error == kFileExists || ReadOnly()) {
    InUse sign;
    ReadInUse(kit_.files.GetDisk(), held_.path, sign);
    BecomeTheirs(sign);
    kit_.desk.GetMessages().Tell(TakenOverText(sign));
  }
}

void ProjectHold::RenewKept() {
  const QDateTime now = kit_.platform.clock.Now();
  Disk& disk = kit_.files.GetDisk();
  std::erase_if(kept_, [&](Held& kept) {
    if (!WaitsBelow(kept.folder)) {
      ReleaseInUse(disk, kept.path, me_);
      return true;
    }
    if (kept.renewed.secsTo(now) >= kRenewal && RenewInUse(disk, kept.path, me_, now) == kNoError)
      kept.renewed = now;
    return false;
  });
}

void ProjectHold::Watch() {
  InUse sign;
  const int error = ReadInUse(kit_.files.GetDisk(), held_.path, sign);
  if (error == kFileNotFound) return Take(false);
  if (error != kNoError) return;
  if (Gone(sign)) {
    if (TakeFrom(sign, false)) Take(false);
    return;
  }
  if (sign.bytes != seen_) return BecomeTheirs(sign);
  const QDateTime now = kit_.platform.clock.Now();
  if (Here(sign) || declined_ || seenAt_.secsTo(now) < kPatience) return;
  declined_ = !kit_.desk.GetMessages().Ask(TakeOverQuestion(sign, now));
  if (!declined_ && BreakInUse(kit_.files.GetDisk(), held_.path, sign, me_) != kFileExists)
    Take(false);
}

bool ProjectHold::WaitsBelow(const QString& folder) const {
  const auto& pending = kit_.files.PendingSaves();
  return std::any_of(pending.begin(), pending.end(), [&](const Files::Pending& save) {
    return NativePath(save.path).startsWith(NativePath(folder), Qt::CaseInsensitive);
  });
}

// A program that slept longer than others wait looks whether the project still is its own.
bool ProjectHold::MayWrite(const QString& path) {
  if (state_ == State::None || !path.startsWith(held_.folder, Qt::CaseInsensitive)) return true;
  if (state_ == State::Mine && held_.renewed.secsTo(kit_.platform.clock.Now()) >= kPatience)
    Renew();
  return state_ != State::Theirs;
}

}  // namespace tamo
