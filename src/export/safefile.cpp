#include "export/safefile.h"

#include <QFile>

#include "common/failure.h"
#include "common/files.h"
#include "common/replacement.h"

namespace tamo {
namespace {

class DiskSink : public ByteSink {
 public:
  DiskSink(Disk& disk, int handle) : disk_(disk), handle_(handle) {}
  int Write(const QByteArray& bytes) override {
    if (error_ == kNoError) error_ = disk_.Write(handle_, bytes);
    return error_;
  }

 private:
  Disk& disk_;
  int handle_;
  int error_ = kNoError;
};

}  // namespace

int MakeFileSafely(Disk& disk, const QString& path, const std::function<int(ByteSink&)>& make) {
  if (disk.IsFolder(path) || (disk.Exists(path) && !disk.CanWrite(path))) return kNoAccess;
  Replacement fresh(disk, path);
  const int begun = fresh.Begin();
  if (begun != kNoError) return begun;
  DiskSink sink(disk, fresh.Handle());
  int error = kFileOther;
  try {
    error = make(sink);
  } catch (...) {
    fresh.Finish(kFileOther);
    throw;
  }
  error = fresh.Finish(error);
  return error == kNotConfirmed ? kNoError : error;
}

QString WriteReason(int error) {
  if (IsMissing(error)) return QStringLiteral("there is no such folder");
  if (error == kNotOffered)
    return QStringLiteral("libxlsxwriter, which writes workbooks, is not installed");
  return ReasonText(error);
}

int CopyFileInto(const QString& path, ByteSink& sink) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return kFileOther;
  constexpr qint64 kPiece = 1 << 20;
  while (!file.atEnd()) {
    const QByteArray piece = file.read(kPiece);
    if (piece.isEmpty()) return kFileOther;
    const int error = sink.Write(piece);
    if (error != kNoError) return error;
  }
  return kNoError;
}

}  // namespace tamo
