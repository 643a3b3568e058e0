#include "workspace/projectcopy.h"

#include <vector>

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

// One file of a copy: where it goes, and its text.
struct CopiedFile {
  QString to;
  QString text;
};

// The files that stand directly in `folder`, those too that only wait to be saved there. Paths.
QStringList FilesIn(Files& files, const QString& folder) {
  Disk& disk = files.GetDisk();
  QStringList paths;
  for (const QString& name : disk.Names(folder)) {
    const QString path = InFolder(folder, name);
    const bool passing = name.endsWith(QLatin1String(kUnfinishedEnding)) ||
                         name.startsWith(QLatin1String(kInUseName), Qt::CaseInsensitive);
    if (!passing && !disk.IsFolder(path)) paths << path;
  }
  for (const Files::Pending& waiting : files.PendingSaves()) {
    const bool inside =
        FolderOf(NativePath(waiting.path)).compare(NativePath(folder), Qt::CaseInsensitive) == 0;
    if (inside && !waiting.save && !paths.contains(waiting.path, Qt::CaseInsensitive))
      paths << waiting.path;
  }
  return paths;
}

// Reads the files of one folder; what can't be read goes to `left`.
void ReadFolder(Files& files, const QString& from, const QString& to, const QString& targetId,
                std::vector<CopiedFile>& copies, QStringList& left) {
  for (const QString& path : FilesIn(files, from)) {
    QString text;
    const QString name = FileNameOf(path);
    if (files.ReadText(path, text) != kNoError) {
      left << path;
    } else {
      copies.push_back({InFolder(to, name), CopiedText(name, text, targetId)});
    }
  }
}

// The text that stands in the target is replaced, not merged with the copy.
void WriteCopies(Files& files, const std::vector<CopiedFile>& copies, ProjectCopy& result) {
  for (const CopiedFile& copy : copies) {
    files.Forget(copy.to);
    if (files.SaveText(copy.to, copy.text) == kNoError) {
      ++result.copied;
    } else {
      result.waiting << copy.to;
    }
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
  std::vector<CopiedFile> copies;
  QStringList folders;
  ReadFolder(files, source, target, targetId, copies, result.left);
  for (const char* name : kCopiedSubFolders) {
    const QString from = files.Resolved(InFolder(source, QLatin1String(name)));
    const QString to = files.Resolved(InFolder(target, QLatin1String(name)));
    folders << to;
    ReadFolder(files, from, to, targetId, copies, result.left);
  }
  // Half a project is worse than none: it looks like a whole one.
  if (!result.left.isEmpty()) return result;
  result.done = true;
  for (const QString& folder : folders) files.MakeFolder(folder);
  WriteCopies(files, copies, result);
  return result;
}

}  // namespace tamo
