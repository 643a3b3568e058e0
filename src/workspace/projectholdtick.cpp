#include <algorithm>

#include "common/failure.h"
#include "common/paths.h"
#include "records/datafolder.h"
#include "workspace/holdwords.h"
#include "workspace/projecthold.h"

// What the hold on a project does as time goes by, and before each save.

namespace tamo {

namespace {

constexpr qint64 kMilliseconds = 1000;

// A clock that was set back makes everything due.
bool IsOver(const QDateTime& since, const QDateTime& now, int seconds) {
  const qint64 gone = since.secsTo(now);
  return gone >= seconds || gone < 0;
}

}  // namespace

void ProjectHold::Tick() {
  RenewKept();
  FollowFolder();
  SayLost();
  if (state_ == State::Theirs) return Watch();
  if (state_ == State::Mine) {
    RenewIfDue(held_, kRenewal);
    SayLost();
  } else if (state_ == State::Unsigned &&
             IsOver(held_.renewed, kit_.platform.clock.Now(), kRenewal)) {
    Take();
  }
}

void ProjectHold::TickInEvent() {
  if (state_ == State::Mine) RenewIfDue(held_, kRenewal);
  for (Held& kept : kept_) RenewIfDue(kept, kRenewal);
}

// The data folder was changed under the open project: what is written goes to the other one now.
void ProjectHold::FollowFolder() {
  if (state_ == State::None) return;
  const ProjectFolder project(kit_.shared);
  if (project.InUse() != held_.path && kit_.files.GetDisk().IsFolder(BareFolder(project.Path())))
    Open();
}

// Only notes it when the sign is another's by now: this may be in the middle of a save.
int ProjectHold::RenewIfDue(Held& held, int seconds) {
  const QDateTime now = kit_.platform.clock.Now();
  if (held.lost || !IsOver(held.renewed, now, seconds)) return kNoError;
  Disk& disk = kit_.files.GetDisk();
  int error = RenewInUse(disk, held.path, me_, now);
  // A tidy program took it away.
  if (error == kFileNotFound) error = TakeInUse(disk, held.path, me_, now);
  if (error == kNoError) held.renewed = now;
  held.lost = error == kFileExists;
  return error;
}

void ProjectHold::RenewKept() {
  std::erase_if(kept_, [&](Held& kept) {
    if (WaitingBelow(kept.folder).isEmpty()) {
      ReleaseInUse(kit_.files.GetDisk(), kept.path, me_);
      return true;
    }
    RenewIfDue(kept, kRenewal);
    return false;
  });
}

void ProjectHold::SayLost() {
  if (state_ != State::Mine || !held_.lost) return;
  InUse sign;
  ReadInUse(kit_.files.GetDisk(), held_.path, sign);
  const QStringList unsaved = refused_ + WaitingBelow(held_.folder);
  refused_.clear();
  BecomeTheirs(sign);
  kit_.desk.GetMessages().Tell(TakenOverText(sign, unsaved));
}

void ProjectHold::Watch() {
  InUse sign;
  const int error = ReadInUse(kit_.files.GetDisk(), held_.path, sign);
  if (error == kPathNotFound) return BecomeGone();
  if (error == kFileNotFound) {
    const bool there = kit_.files.GetDisk().IsFolder(BareFolder(held_.folder));
    return there ? Take() : BecomeGone();
  }
  if (error != kNoError) return;
  if (Gone(sign)) return Take();
  if (sign.bytes != seen_) return BecomeTheirs(sign);
  if (Here(sign) || declined_ || !WatchedLongEnough()) return;
  declined_ = !kit_.desk.GetMessages().Ask(TakeOverQuestion(sign, kit_.platform.clock.Now()));
  if (!declined_ && TakeFrom(sign)) Take();
}

bool ProjectHold::WatchedLongEnough() {
  const QDateTime now = kit_.platform.clock.Now();
  watched_ += std::clamp<qint64>(lookedAt_.msecsTo(now), 0, kLongestLook * kMilliseconds);
  lookedAt_ = now;
  return watched_ >= kPatience * kMilliseconds;
}

// What could not be saved before the project was lost may be older than what stands there now.
void ProjectHold::AskAboutWaiting() {
  const QStringList waiting = WaitingBelow(held_.folder);
  if (waiting.isEmpty() || kit_.desk.GetMessages().Ask(WaitingQuestion(waiting))) return;
  for (const QString& path : waiting) kit_.files.StopTrying(path);
}

QStringList ProjectHold::WaitingBelow(const QString& folder) const {
  QStringList waiting;
  for (const Files::Pending& save : kit_.files.PendingSaves()) {
    if (NativePath(save.path).startsWith(NativePath(folder), Qt::CaseInsensitive))
      waiting << save.path;
  }
  return waiting;
}

// A program that slept longer than others wait looks whether the project still is its own.
bool ProjectHold::MayWrite(const QString& path) {
  for (Held& kept : kept_) {
    if (!path.startsWith(kept.folder, Qt::CaseInsensitive)) continue;
    RenewIfDue(kept, kPatience);
    return !kept.lost;
  }
  if (state_ == State::None || !path.startsWith(held_.folder, Qt::CaseInsensitive)) return true;
  if (state_ == State::Mine) RenewIfDue(held_, kPatience);
  const bool may = state_ != State::Theirs && !held_.lost;
  if (!may && state_ == State::Mine && !refused_.contains(path)) refused_ << path;
  return may;
}

}  // namespace tamo
