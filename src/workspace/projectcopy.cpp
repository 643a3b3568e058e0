#include "workspace/projectcopy.h"

#include "common/failure.h"
#include "common/paths.h"
#include "common/replacement.h"
#include "common/textlines.h"

namespace tamo {
namespace {

constexpr int kOldIdLength = 7;

bool IsProject(Files& files, const DataFolder& data, const QString& id) {
  return NameRefusal(id).isEmpty() && files.GetDisk().IsFolder(BareFolder(data.Project(id).Path()));
}

void CopyFile(Files& files, const QString& from, const QString& to, const QString& targetId,
              ProjectCopy& result) {
  QString text;
  if (files.ReadText(from, text) != kNoError) {
    result.left << from;
  } else if (files.SaveText(to, CopiedText(FileNameOf(from), text, targetId)) != kNoError) {
    result.left << to;
  } else {
    ++result.copied;
  }
}

// The files that stand directly in `from`; folders are passed over.
void CopyFolder(Files& files, const QString& from, const QString& to, const QString& targetId,
                ProjectCopy& result) {
  Disk& disk = files.GetDisk();
  for (const QString& name : disk.Names(from)) {
    const QString path = InFolder(from, name);
    if (disk.IsFolder(path) || name.endsWith(QLatin1String(kUnfinishedEnding))) continue;
    if (name.startsWith(QLatin1String(kInUseName), Qt::CaseInsensitive)) continue;
    CopyFile(files, path, InFolder(to, name), targetId, result);
  }
}

}  // namespace

QString CopiedText(const QString& fileName, const QString& text, const QString& targetId) {
  QStringList lines = WholeLines(text);
  if (IsProjectRecord(fileName)) {
    for (QString& line : lines) {
      if (line.size() == kOldIdLength) line = targetId;
    }
  }
  return JoinedLines(lines);
}

ProjectCopy CopyProjectFiles(Files& files, const DataFolder& data, const QString& sourceId,
                             const QString& targetId) {
  ProjectCopy result;
  if (!IsProject(files, data, sourceId) || !IsProject(files, data, targetId)) return result;
  const QString source = BareFolder(data.Project(sourceId).Path());
  const QString target = BareFolder(data.Project(targetId).Path());
  if (files.Resolved(source) == files.Resolved(target)) return result;
  result.done = true;
  CopyFolder(files, source, target, targetId, result);
  for (const char* name : kCopiedSubFolders) {
    const QString from = files.Resolved(InFolder(source, QLatin1String(name)));
    const QString to = files.Resolved(InFolder(target, QLatin1String(name)));
    files.MakeFolder(to);
    CopyFolder(files, from, to, targetId, result);
  }
  return result;
}

}  // namespace tamo
