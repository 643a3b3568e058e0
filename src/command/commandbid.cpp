#include "command/commandbid.h"

#include <QDir>

#include "common/failure.h"
#include "common/paths.h"
#include "records/projectlist.h"
#include "records/settingsfile.h"

namespace tamo {
namespace {

// The name that the project list has for it.
QString ListedName(Files& files, const DataFolder& data, const QString& id) {
  QStringList entries;
  ReadProjectList(files, data, entries);
  for (const QString& entry : entries) {
    if (IdToOpen(entry) == id) return NameOfEntry(entry);
  }
  return {};
}

QString WithSeparator(const QString& folder) {
  return EndsInSeparator(folder) ? folder : folder + PlatformSeparator();
}

}  // namespace

CommandData::CommandData(const CommandPlatform& platform)
    : platform_(platform), files_(platform.disk) {
  files_.mayWrite = [](const QString&) { return false; };
  shared_.Separator = PlatformSeparator();
  shared_.zDir = platform.programFolder;
}

QString CommandData::Open(const QString& named) {
  SettingsRecord settings;
  ReadSettings(files_, platform_.programFolder, platform_.configFolder, settings);
  company_ = settings.companyName;
  wholeQuantities_ = settings.wholeQuantities;
  QString folder = named;
  if (folder.isEmpty()) folder = settings.dataPath;
  if (folder.isEmpty()) folder = InFolder(platform_.homeFolder, QStringLiteral("Tamo"));
  folder = NativePath(folder);
  if (!QDir::isAbsolutePath(folder))
    folder = named.isEmpty() ? InFolder(platform_.programFolder, folder)
                             : QDir::toNativeSeparators(QDir::current().absoluteFilePath(folder));
  shared_.DataPath = WithSeparator(folder);
  Disk& disk = platform_.disk;
  if (!disk.IsFolder(folder))
    return QStringLiteral("There is no data folder %1. --data names another one.").arg(folder);
  const DataFolder data(shared_);
  if (!disk.IsFolder(data.Projects()) && !disk.Exists(data.ProjectList()))
    return QStringLiteral("%1 is no data folder: it has neither Jobs.lst nor Projects.")
        .arg(folder);
  return {};
}

QString CommandData::OpenProject(const QString& id) {
  const QString refusal = NameRefusal(id);
  const DataFolder data(shared_);
  if (!refusal.isEmpty() || !platform_.disk.IsFolder(data.Project(id).Path()))
    return QStringLiteral("There is no project %1 in %2. \"tamo list\" tells all of them.")
        .arg(id, BareFolder(shared_.DataPath));
  shared_.JobID = id;
  record_ = {};
  const int error = ReadProjectRecord(files_, ProjectFolder(shared_), record_);
  if (error != kNoError && !IsMissing(error))
    return QStringLiteral("The record of the project %1 can't be read, because %2.")
        .arg(id, ReadReasonText(error));
  shared_.JobName = record_.jobName.isEmpty() ? ListedName(files_, data, id) : record_.jobName;
  return {};
}

bool CommandData::Holds(const QString& path) const {
  // A link is written through, so what it points to counts.
  const auto clean = [this](const QString& file) {
    const QString whole =
        QDir::cleanPath(platform_.disk.FollowLink(QDir::current().absoluteFilePath(file)));
    const QString folder = QFileInfo(FolderOf(whole)).canonicalFilePath();
    return folder.isEmpty() ? whole : InFolder(folder, FileNameOf(whole));
  };
  const QString data = QFileInfo(shared_.DataPath).canonicalFilePath();
  return clean(path).startsWith(WithSeparator(data), Qt::CaseSensitive);
}

ReportSource CommandData::Source(Uncounted& uncounted, TableSink* table) {
  ReportSource source{files_, shared_, {}};
  source.wholeQuantities = wholeQuantities_;
  source.uncounted = &uncounted;
  source.table = table;
  return source;
}

ReportFacts CommandData::Facts(Uncounted& uncounted) {
  ReportFacts facts;
  LoadMarkups(files_, shared_, facts.markups);
  for (const ReadFailure& failure : files_.ReadFailures()) {
    if (failure.path == ProjectFolder(shared_).Markups() ||
        failure.path == DataFolder(shared_).Markups())
      uncounted.File(QStringLiteral("the markups"), failure.path, failure.number);
  }
  facts.jobID = shared_.JobID;
  facts.project = {shared_.JobName,    record_.bidDate,    record_.phase,     record_.addenda,
                   record_.inclusions, record_.exclusions, record_.architect, record_.notes};
  return facts;
}

}  // namespace tamo
