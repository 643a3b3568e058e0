#include "player/machine.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include "records/datafolder.h"

namespace tamo::player {
namespace {

const QString kHistory = QStringLiteral("/Tamo/History");

}  // namespace

Machine::Machine(const QString& programFolder, const QString& homeFolder)
    : programFolder_(programFolder), homeFolder_(homeFolder) {}

// Where each file operation is counted, none may come from another thread.
Platform Machine::GetPlatform() {
  const bool counted = qEnvironmentVariableIsSet("PROVING_BELOW");
  return {disk,
          clock,
          messages,
          printer,
          clipboard,
          programFolder_,
          homeFolder_,
          homeFolder_ + QStringLiteral("/.config/Tamo"),
          counted ? nullptr : &historyDisk};
}

QString Machine::Expanded(QString text) const {
  text.replace(QStringLiteral("{home}"), homeFolder_);
  return text.replace(QStringLiteral("{program}"), programFolder_);
}

QString Machine::PathOf(const QString& path) const {
  const QString full = Expanded(path);
  if (full.startsWith(QLatin1Char('@')))
    return QDir::cleanPath(programFolder_ + QLatin1Char('/') + full.mid(1));
  if (QDir::isAbsolutePath(full)) return QDir::cleanPath(full);
  return QDir::cleanPath(homeFolder_ + QLatin1Char('/') + full);
}

bool Machine::WriteFile(const QString& path, const QByteArray& bytes) {
  QDir().mkpath(QFileInfo(path).path());
  QFile file(path);
  return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

bool Machine::Copy(const QString& from, const QString& to) {
  if (!QFileInfo(from).isDir()) {
    QFile source(from);
    return source.open(QIODevice::ReadOnly) && WriteFile(to, source.readAll());
  }
  bool done = QDir().mkpath(to);
  const QDir folder(from);
  for (const QString& name :
       folder.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot))
    done = Copy(folder.filePath(name), to + QLatin1Char('/') + name) && done;
  return done;
}

bool Machine::Remove(const QString& path) {
  const QFileInfo info(path);
  if (!info.exists() && !info.isSymLink()) return false;
  return info.isDir() && !info.isSymLink() ? QDir(path).removeRecursively() : QFile::remove(path);
}

QStringList Machine::Everything(const QString& folder) {
  QStringList found;
  const QDir root(folder);
  QDirIterator each(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
  while (each.hasNext()) {
    const QString path = each.next();
    if (!folder.contains(kHistory) && path.contains(kHistory)) continue;
    if (each.fileName() == QLatin1String(kInUseName)) continue;
    const QFileInfo info = each.fileInfo();
    found += root.relativeFilePath(path) +
             (info.isDir() && !info.isSymLink() ? QStringLiteral("/") : QString());
  }
  found.sort();
  return found;
}

}  // namespace tamo::player
