#include "commandbench.h"
#include "support/sourcefile.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QDirIterator>

namespace tamo::test {

QStringList PlayedCommand::Lines() const {
  QStringList lines = QString::fromUtf8(out).split(u'\n');
  if (!lines.isEmpty() && lines.last().isEmpty()) lines.removeLast();
  return lines;
}

PlayedCommand PlayCommand(FaultDisk& disk, const QString& home, const QStringList& arguments) {
  PlayedCommand played;
  BytesInMemory out;
  const CommandPlatform platform{disk,
                                 out,
                                 [&played](const QString& line) { played.complaints += line; },
                                 false,
                                 home + QStringLiteral("/program"),
                                 home,
                                 home + QStringLiteral("/config"),
                                 QStringLiteral("1.2.3")};
  played.status = RunCommand(arguments, platform);
  played.out = out.all;
  return played;
}

PlayedCommand PlayCommand(const QString& home, const QStringList& arguments) {
  FaultDisk disk;
  return PlayCommand(disk, home, arguments);
}

QStringList Snapshot(const QString& folder) {
  QStringList files;
  QDirIterator all(folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                   QDirIterator::Subdirectories);
  while (all.hasNext()) {
    all.next();
    QByteArray bytes;
    QFile file(all.filePath());
    if (file.open(QIODevice::ReadOnly)) bytes = file.readAll();
    files += all.filePath() + u' ' + all.fileInfo().lastModified().toString(Qt::ISODateWithMs) +
             u' ' +
             QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Sha1).toHex());
  }
  files.sort();
  return files;
}

QString DataPathOf(const QString& name) {
  return test::SourceFile(QStringLiteral("tests/data/")) + name;
}

bool CopyFolder(const QString& from, const QString& to) {
  if (!QDir().mkpath(to)) return false;
  QDirIterator all(from, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
  while (all.hasNext()) {
    const QString path = all.next();
    const QString target = to + path.mid(from.size());
    QDir().mkpath(QFileInfo(target).path());
    if (!QFile::copy(path, target)) return false;
  }
  return true;
}

}  // namespace tamo::test
