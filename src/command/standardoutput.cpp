#include "command/standardoutput.h"

#include <cerrno>

#ifdef Q_OS_WIN
#include <io.h>
#else
#include <unistd.h>
#endif

#include "common/failure.h"

namespace tamo {
namespace {

constexpr int kStandardOutput = 1;

#ifdef Q_OS_WIN
qint64 WritePiece(const char* from, qsizetype count) {
  return ::_write(kStandardOutput, from, static_cast<unsigned>(qMin<qsizetype>(count, 1 << 20)));
}
#else
qint64 WritePiece(const char* from, qsizetype count) {
  return ::write(kStandardOutput, from, static_cast<size_t>(count));
}
#endif

}  // namespace

int StandardOutput::Write(const QByteArray& bytes) {
  qsizetype done = 0;
  while (error_ == kNoError && done < bytes.size()) {
    const qint64 count = WritePiece(bytes.constData() + done, bytes.size() - done);
    if (count > 0) {
      done += count;
    } else if (errno != EINTR) {
      error_ = errno == ENOSPC || errno == EFBIG ? kDiskFull : kFileOther;
    }
  }
  return error_;
}

bool StandardOutput::IsTerminal() const {
#ifdef Q_OS_WIN
  return ::_isatty(kStandardOutput) != 0;
#else
  return ::isatty(kStandardOutput) != 0;
#endif
}

}  // namespace tamo
