#include "workspace/projectcopy.h"

#include "common/failure.h"
#include "common/paths.h"
#include "common/textlines.h"

namespace tamo {
namespace {

constexpr int kOldIdLength = 7;

QString Inside(const QString& folder, const QString& name) {
  return EndsInSeparator(folder) ? folder + name : folder + PlatformSeparator() + name;
}

bool IsProject(Files& files, const QString& projects, const QString& id) {
  return NameRefusal(id).isEmpty() && files.GetDisk().IsFolder(Inside(projects, id));
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
    const QString path = Inside(from, name);
    if (disk.IsFolder(path) || name.endsWith(QLatin1String(kUnfinishedEnding))) continue;
    CopyFile(files, path, Inside(to, name), targetId, result);
  }
}

}  // namespace

QString CopiedText(const QString& fileName, const QString& text, const QString& targetId) {
  QStringList lines = WholeLines(text);
  if (fileName.compare(QLatin1String("JobNFO.tamo"), Qt::CaseInsensitive) == 0) {
    for (QString& line : lines) {
      if (line.size() == kOldIdLength) line = targetId;
    }
  }
  return JoinedLines(lines);
}

ProjectCopy CopyProjectFiles(Files& files, const QString& projects, const QString& sourceId,
                             const QString& targetId) {
  ProjectCopy result;
  if (!IsProject(files, projects, sourceId) || !IsProject(files, projects, targetId)) return result;
  const QString source = Inside(projects, sourceId);
  const QString target = Inside(projects, targetId);
  if (files.Resolved(source) == files.Resolved(target)) return result;
  result.done = true;
  CopyFolder(files, source, target, targetId, result);
  for (const char* name : {"Systems", "Rooms", "ATOs"}) {
    const QString from = files.Resolved(Inside(source, QLatin1String(name)));
    const QString to = files.Resolved(Inside(target, QLatin1String(name)));
    files.MakeFolder(to);
    CopyFolder(files, from, to, targetId, result);
  }
  return result;
}

}  // namespace tamo
