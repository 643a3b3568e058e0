#include "schedule/tesseract.h"

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace tamo {
namespace {

constexpr int kLook = 20;                   // milliseconds
constexpr qsizetype kMostBytes = 16 << 20;  // of what it writes

QString Found() {
  return QStandardPaths::findExecutable(QStringLiteral("tesseract"));
}

PictureText Failed(const QString& why) {
  return {QStringLiteral("The picture of the sheet can't be read: %1.").arg(why), {}};
}

bool WriteGrey(const QString& path, const GreyPicture& picture) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly)) return false;
  const QString head = QStringLiteral("P5\n%1 %2\n255\n").arg(picture.width).arg(picture.height);
  file.write(head.toLatin1());
  file.write(picture.pixels);
  file.close();
  return file.error() == QFileDevice::NoError;
}

QStringList Arguments(const QString& path, int dotsPerInch, bool block) {
  return {path,
          QStringLiteral("stdout"),
          QStringLiteral("--psm"),
          block ? QStringLiteral("6") : QStringLiteral("11"),
          QStringLiteral("--dpi"),
          QString::number(dotsPerInch),
          QStringLiteral("tsv")};
}

PictureText Ended(QProcess& process, const QString& why) {
  process.kill();
  process.waitForFinished(1000);
  return Failed(why);
}

}  // namespace

bool Tesseract::Here() const {
  return !Found().isEmpty();
}

PictureText Tesseract::Read(const GreyPicture& picture, bool block,
                            const std::atomic<bool>& stop) const {
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("sheet.pgm"));
  if (!folder.isValid() || !WriteGrey(path, picture)) {
    return Failed(QStringLiteral("there is no room on the disk for it"));
  }
  QProcess process;
  process.setStandardInputFile(QProcess::nullDevice());
  process.setStandardErrorFile(QProcess::nullDevice());
  process.start(Found(), Arguments(path, picture.dotsPerInch, block), QIODevice::ReadOnly);
  QElapsedTimer since;
  since.start();
  PictureText text;
  while (process.state() != QProcess::NotRunning) {
    process.waitForFinished(kLook);
    text.table += process.readAllStandardOutput();
    if (stop) return Ended(process, QStringLiteral("it was stopped"));
    if (text.table.size() > kMostBytes) {
      return Ended(process, QStringLiteral("tesseract writes without end"));
    }
    if (since.elapsed() > patience_) {
      return Ended(process, QStringLiteral("tesseract takes too long. Draw a smaller box"));
    }
  }
  text.table += process.readAllStandardOutput();
  const bool failed = process.error() == QProcess::FailedToStart ||
                      process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0;
  return failed ? Failed(QStringLiteral("the program tesseract failed")) : text;
}

}  // namespace tamo
