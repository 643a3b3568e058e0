#include <QByteArray>
#include <algorithm>
#include <memory>
#include <utility>

#include "common/failure.h"
#include "common/files.h"
#include "common/replacement.h"
#include "common/textlines.h"

// How a file is replaced, and who hears of it.

namespace tamo {
namespace {

// What stood in a file that is gone.
class BytesReader : public FileReader {
 public:
  explicit BytesReader(QByteArray bytes) : bytes_(std::move(bytes)) {}
  qint64 Size() const override { return bytes_.size(); }
  int ReadAt(qint64 offset, char* into, qint64 count, qint64& got) const override {
    got = std::clamp<qint64>(bytes_.size() - offset, 0, count);
    std::copy_n(bytes_.constData() + offset, got, into);
    return kNoError;
  }

 private:
  QByteArray bytes_;
};

}  // namespace

int Files::ReplaceFile(const QString& path, const QByteArray& bytes) {
  if (mayWrite && !mayWrite(path)) return kNoAccess;
  Text made;
  made.bytes = bytes.isNull() ? QByteArray("") : bytes;
  const int error = ReplaceInItsFolder(path, made);
  book_.Forget(path);
  return error;
}

int Files::Replace(const QString& path, Text& made) {
  const QString target = Resolved(path);
  names_.Forget();
  memory_.Forget(target);
  if (disk_.Exists(target) && !disk_.CanWrite(target)) return kNoAccess;
  if (disk_.IsFolder(target)) return kNoAccess;
  int error = ReplaceOnce(target, made);
  while (error == kDiskFull && witness != nullptr && witness->MakeRoom())
    error = ReplaceOnce(target, made);
  return error;
}

int Files::ReplaceOnce(const QString& target, Text& made) {
  Replacement fresh(disk_, target);
  int error = fresh.Begin();
  if (error != kNoError) return error;
  error = disk_.Write(fresh.Handle(), made.bytes.isNull() ? made.text.toUtf8() : made.bytes);
  if (!disk_.Exists(target)) return Witnessed(fresh.FinishNew(error), target, nullptr);
  // The old file is opened before it loses its name; it is read later, and not here.
  std::shared_ptr<FileReader> former;
  if (witness != nullptr) disk_.OpenToRead(target, former);
  if (made.expected.isNull()) return Witnessed(fresh.Finish(error), target, std::move(former));
  QByteArray displaced;
  error = fresh.FinishSwapped(error, displaced);
  // What was really displaced, should another program have stored the file just then.
  if (!displaced.isNull() && displaced != made.expected.toUtf8())
    former = std::make_shared<BytesReader>(displaced);
  Witnessed(error, target, std::move(former));
  if (displaced.isNull() || displaced == made.expected.toUtf8()) return error;
  const QString held = DecodedText(displaced);
  if (held != made.expected) made.displaced = held.isNull() ? QLatin1String("") : held;
  return error;
}

// Tells the witness when the file was replaced.
int Files::Witnessed(int error, const QString& target, std::shared_ptr<FileReader> former) const {
  if (witness != nullptr && (error == kNoError || error == kNotConfirmed))
    witness->Replaced(target, std::move(former));
  return error;
}

}  // namespace tamo
