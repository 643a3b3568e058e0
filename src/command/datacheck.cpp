#include "command/datacheck.h"

#include "common/failure.h"
#include "common/paths.h"
#include "records/projectlist.h"
#include "records/sheetnames.h"
#include "reports/merge.h"
#include "reports/notebook.h"

namespace tamo {
namespace {

const QString kUnread = QStringLiteral("can't be read");
const QString kUnpriced = QStringLiteral("unpriced");
const QString kUncounted = QStringLiteral("not counted");
const QString kCents = QStringLiteral("reads badly");
const QString kWithoutQuantity = QStringLiteral("no quantity");

// The endings of the program's own text files.
bool IsRecord(const QString& name) {
  for (const char* ending : {".tamo", ".sys", ".mat", ".rfs", ".ato", ".lst", ".num"}) {
    if (name.endsWith(QLatin1String(ending), Qt::CaseInsensitive)) return true;
  }
  return false;
}

}  // namespace

bool DataCheck::Reads(const QString& path) {
  QString text;
  const int error = run_.data.GetFiles().ReadForReport(path, text);
  if (error == kNoError || IsMissing(error)) return true;
  Add(kUnread, QStringLiteral("%1: %2.").arg(path, ReadReasonText(error)));
  return false;
}

void DataCheck::ReadFolder(const QString& folder) {
  Disk& disk = run_.platform.disk;
  for (const QString& name : disk.Names(folder)) {
    const QString path = folder + name;
    if (IsRecord(name) && !disk.IsFolder(path)) Reads(path);
  }
}

void DataCheck::All() {
  const DataFolder data(run_.data.Shared());
  of_ = BareFolder(data.Path());
  ReadFolder(data.Path());
  ReadFolder(data.Systems());
  ProjectList();
}

// Each project that the list or a folder knows.
void DataCheck::ProjectList() {
  const DataFolder data(run_.data.Shared());
  Disk& disk = run_.platform.disk;
  QStringList entries;
  ReadProjectList(run_.data.GetFiles(), data, entries);
  QStringList ids;
  for (const QString& entry : entries) {
    const QString id = IdToOpen(entry);
    if (!NameRefusal(id).isEmpty() || !disk.IsFolder(data.Project(id).Path())) {
      Add(kUnread, QStringLiteral("The list of projects names %1, which has no folder.").arg(id));
    } else if (!ids.contains(id)) {
      ids += id;
    }
  }
  for (const QString& folder : disk.Names(data.Projects())) {
    if (ids.contains(folder) || !disk.IsFolder(data.Project(folder).Path())) continue;
    Add(kUncounted,
        QStringLiteral("The list of projects does not name the folder %1.").arg(folder));
  }
  for (const QString& id : ids) Project(id);
}

void DataCheck::Project(const QString& id) {
  ++projects_;
  of_ = id;
  const QString problem = run_.data.OpenProject(id);
  if (!problem.isEmpty()) return Add(kUnread, problem);
  of_ = ProjectEntry(id, run_.data.Shared().JobName);
  ProjectFiles();
  Recap();
}

void DataCheck::ProjectFiles() {
  const ProjectFolder project(run_.data.Shared());
  ReadFolder(project.Path());
  ReadFolder(project.Systems());
  QStringList rooms;
  QStringList areas;
  ReadRoomNames(run_.data.GetFiles(), project, rooms);
  ReadAreaNames(run_.data.GetFiles(), project, areas);
  Unlisted("Rooms", rooms, ".rfs");
  Unlisted("ATOs", areas, ".ato");
}

// A sheet of the takeoff that no list names.
void DataCheck::Unlisted(const char* folder, const QStringList& names, const char* ending) {
  const QString path = ProjectFolder(run_.data.Shared()).SubFolder(folder);
  for (const QString& file : run_.platform.disk.Names(path)) {
    if (!file.endsWith(QLatin1String(ending), Qt::CaseInsensitive)) continue;
    const QString name = file.chopped(4);
    if (!names.contains(name, Qt::CaseInsensitive))
      Add(kUncounted, QStringLiteral("%1: its list does not name it.")
                          .arg(QLatin1String(folder) + PlatformSeparator() + file));
  }
}

void DataCheck::Recap() {
  Uncounted uncounted;
  const ReportFacts facts = run_.data.Facts(uncounted);
  const ReportSource source = run_.data.Source(uncounted, nullptr);
  try {
    for (const MergedRow& row : Calculate(source)) {
      if (row.value == 0)
        Add(kWithoutQuantity, QStringLiteral("The system \"%1\" comes to 0.").arg(row.name));
    }
    QString adjustment;
    for (const ReportNote& note : MakeReport(ReportKind::Recap, source, facts, adjustment).notes)
      Add(note.text.contains(QLatin1String("in plain figures")) ? kCents : kUnpriced, note.text);
  } catch (const RunTimeFailure& failure) {
    Add(kUnpriced, failure.text);
  }
  for (const QString& sentence : uncounted.Sentences()) Add(kUncounted, sentence);
}

}  // namespace tamo
