#include "records/inusefile.h"

#include "common/failure.h"
#include "common/textlines.h"

namespace tamo {
namespace {

constexpr int kLines = 8;

QString TimeText(const QDateTime& time) {
  return time.toUTC().toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss.zzzZ"));
}

QDateTime TimeOf(const QString& text) {
  return QDateTime::fromString(text, Qt::ISODateWithMs);
}

QByteArray LastLine(const QDateTime& now) {
  return JoinedLines({TimeText(now)}).toUtf8();
}

QByteArray AllLines(const ProgramRun& owner, const QDateTime& now) {
  return JoinedLines({owner.user, owner.machine, owner.machineId, QString::number(owner.process),
                      owner.processStart, owner.run, TimeText(now)})
             .toUtf8() +
         LastLine(now);
}

int WriteAndClose(Disk& disk, int handle, const QByteArray& bytes) {
  const int error = disk.Write(handle, bytes);
  const int closing = disk.Close(handle);
  return error != kNoError ? error : closing;
}

}  // namespace

int ReadInUse(Disk& disk, const QString& path, InUse& sign) {
  sign = {};
  const int error = disk.Read(path, sign.bytes);
  if (error != kNoError) return error;
  const QStringList lines = WholeLines(DecodedText(sign.bytes));
  if (lines.size() < kLines - 1) return kNoError;
  sign.taken = TimeOf(lines[6]);
  sign.renewed = TimeOf(lines.value(7));
  sign.owner = {lines[0], lines[1], lines[2], lines[3].toLongLong(), lines[4], lines[5]};
  return kNoError;
}

int TakeInUse(Disk& disk, const QString& path, const ProgramRun& owner, const QDateTime& now) {
  int handle = -1;
  int error = disk.OpenExclusive(path, handle);
  if (error != kNoError) return error;
  error = WriteAndClose(disk, handle, AllLines(owner, now));
  if (error != kNoError) disk.RemoveFile(path);
  return error;
}

int RenewInUse(Disk& disk, const QString& path, const ProgramRun& owner, const QDateTime& now) {
  InUse sign;
  int error = ReadInUse(disk, path, sign);
  if (error != kNoError) return error;
  if (!(sign.owner == owner)) return kFileExists;
  int handle = -1;
  error = disk.OpenAtEnd(path, handle);
  if (error != kNoError) return error;
  const qint64 whole = AllLines(owner, sign.taken).size();
  disk.Truncate(handle, whole - LastLine(sign.taken).size());
  return WriteAndClose(disk, handle, LastLine(now));
}

void ReleaseInUse(Disk& disk, const QString& path, const ProgramRun& owner) {
  InUse sign;
  if (ReadInUse(disk, path, sign) == kNoError && sign.owner == owner) disk.RemoveFile(path);
}

// Moved aside first: a file can be moved by one program only, and what was moved can be looked at
// in peace.
int BreakInUse(Disk& disk, const QString& path, const InUse& left, const ProgramRun& breaker) {
  const QString aside = path + QLatin1Char('.') + breaker.run;
  int error = disk.Rename(path, aside);
  if (error != kNoError) return error;
  InUse moved;
  error = ReadInUse(disk, aside, moved);
  if (error != kNoError || moved.bytes != left.bytes) {
    if (!disk.Exists(path)) disk.Rename(aside, path);
    return kFileExists;
  }
  return disk.RemoveFile(aside);
}

}  // namespace tamo
