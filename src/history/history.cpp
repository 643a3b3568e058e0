#include "history/history.h"

#include <algorithm>

#include "common/failure.h"
#include "common/paths.h"
#include "history/bringback.h"
#include "history/deletedbid.h"
#include "history/statedisk.h"
#include "records/projectlist.h"

namespace tamo {
namespace {

constexpr std::chrono::milliseconds kLongestDrain{5000};
constexpr qsizetype kToTheMinute = 16;  // characters of a moment

QString NotKept(int error, const QString& path) {
  return QStringLiteral("No version was kept: %1 can't be read or written, because %2.")
      .arg(path, ReasonText(error));
}

}  // namespace

FormerBid::FormerBid(const HistoryFolder& folder, const VersionHead& head, const BidState& state)
    : head_(head),
      disk_(std::make_unique<StateDisk>(folder, state)),
      files_(std::make_unique<Files>(*disk_)) {}

FormerBid::~FormerBid() = default;

QString FormerBid::Words() const {
  const QString when = QString::fromLatin1(head_.when.left(kToTheMinute));
  return head_.name.isEmpty() ? QStringLiteral("the bid as the day %1 began").arg(when.left(10))
                              : QStringLiteral("version \"%1\" of %2").arg(head_.name, when);
}

History::History(const Platform& platform, Files& files, const SharedFields& shared)
    : platform_(platform), files_(files), shared_(shared) {
  if (platform.historyDisk == nullptr) return;
  journal_ = std::make_unique<Journal>(Journal::Setting{
      *platform.historyDisk, [this] { return Folder(); }, [this] { return Now(); }});
  files.witness = journal_.get();
}

History::~History() {
  if (files_.witness == journal_.get()) files_.witness = nullptr;
}

void History::Drain() {
  if (journal_ != nullptr) journal_->Drain(kLongestDrain);
}

void History::Finish() {
  FinishBringingBack(files_, Folder());
}

QString History::KeepVersion(const QString& name, VersionHead::Reason reason) {
  if (shared_.JobID.isEmpty())
    return QStringLiteral("No project is open, so there is no bid to keep.");
  if (!files_.TryAgain())
    return QStringLiteral(
        "No version was kept: some entries are not on the disk yet. See the strip "
        "at the foot of the window, then keep the version again.");
  BidState state;
  QString path;
  int error = ReadBidState(files_.GetDisk(), Folder(), shared_.JobID, state, path);
  if (error != kNoError) return NotKept(error, path);
  const VersionHead head{name.simplified(), shared_.JobID, shared_.JobName, Now(), reason};
  error = WriteVersion(files_.GetDisk(), Folder(), head, state, path);
  return error == kNoError ? QString() : NotKept(error, path);
}

std::vector<Version> History::VersionsOfBid() const {
  if (shared_.JobID.isEmpty()) return {};
  return VersionsOf(files_.GetDisk(), Folder(), shared_.JobID);
}

bool History::SentVersion(Version& version) const {
  return SentVersionOf(VersionsOfBid(), version);
}

bool SentVersionOf(const std::vector<Version>& versions, Version& version) {
  const auto kept = [](const Version& v) { return v.head.reason == VersionHead::Reason::Kept; };
  const auto sent = [&](const Version& v) {
    return kept(v) && v.head.name.contains(QLatin1String("sent"), Qt::CaseInsensitive);
  };
  auto found = std::find_if(versions.begin(), versions.end(), sent);
  if (found == versions.end()) found = std::find_if(versions.begin(), versions.end(), kept);
  if (found == versions.end()) return false;
  version = *found;
  return true;
}

std::vector<QByteArray> History::Days() {
  if (shared_.JobID.isEmpty()) return {};
  Drain();
  const QList<QByteArray> days = DaysOfBid(files_.GetDisk(), Folder(), shared_.JobID);
  return {days.begin(), days.end()};
}

std::shared_ptr<FormerBid> History::LookAt(const Version& version) {
  VersionHead head;
  BidState state;
  if (!ReadVersion(files_.GetDisk(), version.path, head, state)) return nullptr;
  return std::make_shared<FormerBid>(Folder(), head, state);
}

bool History::ReadDay(const QByteArray& day, VersionHead& head, BidState& state) {
  Drain();
  BidState now;
  QString problem;
  if (ReadBidState(files_.GetDisk(), Folder(), shared_.JobID, now, problem) != kNoError)
    return false;
  head = {{}, shared_.JobID, shared_.JobName, day + " 00:00:00.000", VersionHead::Reason::Kept};
  state = StateOfDay(files_.GetDisk(), Folder(), std::move(now), day);
  return true;
}

std::shared_ptr<FormerBid> History::LookAtDay(const QByteArray& day) {
  VersionHead head;
  BidState state;
  if (!ReadDay(day, head, state)) return nullptr;
  return std::make_shared<FormerBid>(Folder(), head, state);
}

QString History::BringBackState(const VersionHead& head, const BidState& state) {
  const QString what = FormerBid(Folder(), head, {}).Words();
  QString refusal = KeepVersion(QStringLiteral("before %1 was brought back").arg(what),
                                VersionHead::Reason::BeforeBringingBack);
  if (!refusal.isEmpty()) return refusal;
  const int error = BringBack(files_, Folder(), head, state);
  if (error == kNoError) return {};
  return QStringLiteral("The bid stays as it stands: a file could not be written, because %1.")
      .arg(ReasonText(error));
}

QString History::BringBackVersion(const Version& version) {
  VersionHead head;
  BidState state;
  if (!ReadVersion(files_.GetDisk(), version.path, head, state) || head.project != shared_.JobID)
    return QStringLiteral(
               "This version is damaged: its file %1 was changed or cut off. The bid "
               "stays as it stands.")
        .arg(version.path);
  return BringBackState(head, state);
}

QString History::BringBackDay(const QByteArray& day) {
  VersionHead head;
  BidState state;
  if (!ReadDay(day, head, state))
    return QStringLiteral("The files of the project can't be read. The bid stays as it stands.");
  return BringBackState(head, state);
}

QString History::KeepDeletedProject(const QString& project, const QString& name) {
  if (journal_ == nullptr || !NameRefusal(project).isEmpty()) return {};
  const VersionHead head{name, project, name, Now(), VersionHead::Reason::Deleted};
  NoteBefore(project);
  const int error = KeepDeleted(files_, Folder(), head);
  return error == kNoError ? QString() : ReasonText(error);
}

// The files of a project go past the journal: what stood in them is noted here, so that its days
// are known when it comes back.
void History::NoteBefore(const QString& project) {
  BidState state;
  QString problem;
  ReadBidState(files_.GetDisk(), Folder(), project, state, problem);
  for (const QString& path : state.files.keys()) {
    std::shared_ptr<FileReader> former;
    const QString whole = Folder().Whole(path);
    if (path.startsWith(FolderOfBid(project)) &&
        files_.GetDisk().OpenToRead(whole, former) == kNoError)
      journal_->Replaced(whole, std::move(former));
  }
}

std::vector<Version> History::DeletedProjects() const {
  std::vector<Version> deleted = DeletedBids(files_.GetDisk(), Folder());
  QStringList entries;
  ReadProjectList(files_, shared_, entries);
  std::erase_if(deleted, [&](const Version& version) {
    return std::any_of(entries.begin(), entries.end(), [&](const QString& entry) {
      return IdToOpen(entry) == version.head.project;
    });
  });
  return deleted;
}

QString History::BringBackDeletedProject(const Version& deleted) {
  QStringList entries;
  const int listed = ReadProjectList(files_, shared_, entries);
  if (listed != kNoError && listed != kFileNotFound)
    return QStringLiteral("The project list can't be read, so nothing was brought back.");
  const int error = BringBackDeleted(files_, Folder(), deleted);
  if (error == kNoAccess)
    return QStringLiteral("There is a project folder %1 already. Nothing was brought back.")
        .arg(deleted.head.project);
  if (error != kNoError)
    return QStringLiteral("Project %1 can't be brought back, because %2.")
        .arg(deleted.head.project, ReasonText(error));
  const QStringList before = entries;
  entries += ProjectEntry(deleted.head.project, deleted.head.projectName);
  WriteProjectList(files_, shared_, entries, before);
  return {};
}

}  // namespace tamo
