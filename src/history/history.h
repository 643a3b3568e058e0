#pragma once

#include <QString>
#include <memory>
#include <vector>

#include "common/files.h"
#include "common/services.h"
#include "common/sharedfields.h"
#include "history/bidstate.h"
#include "history/journal.h"
#include "history/versionfile.h"

namespace tamo {

// A former state of a bid that is looked at: the files of that moment, for the reports to read.
class FormerBid {
 public:
  FormerBid(const HistoryFolder& folder, const VersionHead& head, const BidState& state);
  ~FormerBid();

  const VersionHead& Head() const { return head_; }
  Files& GetFiles() const { return *files_; }
  // "version "as sent to the owner" of 2026-11-17 14:02"
  QString Words() const;

 private:
  VersionHead head_;
  std::unique_ptr<Disk> disk_;
  std::unique_ptr<Files> files_;
};

// The newest version of a bid that was sent, by its name; otherwise the newest one that was kept by
// hand. `versions`: newest first. False when there is none.
bool SentVersionOf(const std::vector<Version>& versions, Version& version);

// All that the program remembers of former states: the journal of files, the versions of bids, and
// deleted projects. What goes wrong is told in words; "" is none.
class History {
 public:
  // All of it outlives this. There is no journal when the platform has no disk for it.
  History(const Platform& platform, Files& files, const SharedFields& shared);
  ~History();
  History(const History&) = delete;
  History& operator=(const History&) = delete;

  HistoryFolder Folder() const { return HistoryFolder(shared_); }
  QByteArray Now() const { return WhenText(platform_.clock.Today()); }

  // The open project as it stands on the disk.
  QString KeepVersion(const QString& name, VersionHead::Reason reason = VersionHead::Reason::Kept);
  std::vector<Version> VersionsOfBid() const;
  bool SentVersion(Version& version) const;
  // The days of which something is known, newest first: each stands for the bid as it was when that
  // day began.
  std::vector<QByteArray> Days();
  std::shared_ptr<FormerBid> LookAt(const Version& version);  // null: it is damaged
  std::shared_ptr<FormerBid> LookAtDay(const QByteArray& day);
  // The open project becomes what it was; what stands is kept as a version before.
  QString BringBackVersion(const Version& version);
  QString BringBackDay(const QByteArray& day);

  // Before the files of a project go.
  QString KeepDeletedProject(const QString& project, const QString& name);
  // Without those that are in the project list.
  std::vector<Version> DeletedProjects() const;
  // Its files and its line in the project list.
  QString BringBackDeletedProject(const Version& deleted);

  // At the start: what a kill left half-done.
  void Finish();

 private:
  void Drain();
  void NoteBefore(const QString& project);
  bool ReadDay(const QByteArray& day, VersionHead& head, BidState& state);
  QString BringBackState(const VersionHead& head, const BidState& state);

  const Platform& platform_;
  Files& files_;
  const SharedFields& shared_;
  std::unique_ptr<Journal> journal_;
};

}  // namespace tamo
