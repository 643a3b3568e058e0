#include "support/room.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "common/textlines.h"

namespace tamo::test {

MachineRoom::MachineRoom() {
  for (const char* name : {"program", "home", "config"}) QDir().mkpath(Path(name));
}

void MachineRoom::Put(const QString& path, const QByteArray& bytes) const {
  QDir().mkpath(QFileInfo(path).path());
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
    qFatal("%s can't be written", qPrintable(path));
}

void MachineRoom::PutLines(const QString& path, const QStringList& lines) const {
  Put(path, JoinedLines(lines).toUtf8());
}

QByteArray MachineRoom::Bytes(const QString& path) const {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList MachineRoom::WholeLinesOf(const QString& path) const {
  return WholeLines(DecodedText(Bytes(path)));
}

FormRoom::FormRoom() {
  shared.Separator = QStringLiteral("/");
  shared.zDir = Path("program");
  shared.DataPath = Path("home/Tamo/");
}

}  // namespace tamo::test
