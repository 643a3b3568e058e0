#include "history/journalwriter.h"

#include <QCoreApplication>
#include <QSysInfo>
#include <atomic>

#include "common/failure.h"
#include "history/historyrecord.h"
#include "history/linedelta.h"

namespace tamo {
namespace {

constexpr qint64 kMostRemembered = 16 << 20;  // bytes
constexpr qsizetype kDay = 10;                // characters of a date

// "2026-11-22 101503 estimators-pc 4711-1.journal": no two programs write into one.
QString NewName(const QByteArray& when) {
  static std::atomic<int> count = 0;
  QString machine = QSysInfo::machineHostName().left(40);
  for (QChar& c : machine) {
    if (!c.isLetterOrNumber()) c = QLatin1Char('-');
  }
  const QByteArray time = when.mid(kDay + 1, 8).replace(":", "");
  return QStringLiteral("%1 %2 %3 %4-%5%6")
      .arg(QString::fromLatin1(when.left(kDay)), QString::fromLatin1(time), machine)
      .arg(QCoreApplication::applicationPid())
      .arg(++count)
      .arg(QLatin1String(kJournalEnding));
}

}  // namespace

int JournalWriter::Open(const HistoryFolder& folder, const QByteArray& when) {
  const bool fits = handle_ >= 0 && day_ == when.left(kDay) && filePath_.startsWith(folder.Path());
  if (fits) return kNoError;
  Close();
  MakeHistoryFolder(disk_, folder.Path());
  filePath_ = folder.Journal(NewName(when));
  const int error = disk_.OpenNew(filePath_, handle_);
  if (error != kNoError) handle_ = -1;
  day_ = when.left(kDay);
  return error;
}

void JournalWriter::Close() {
  if (handle_ >= 0) disk_.Close(handle_);
  handle_ = -1;
  size_ = 0;
  chains_.clear();
  remembered_ = 0;
}

// Half an entry is cut off again; where that fails, too, the journal goes on in another file.
int JournalWriter::Write(const QByteArray& bytes) {
  const int error = disk_.Write(handle_, bytes);
  if (error == kNoError) {
    size_ += bytes.size();
  } else {
    disk_.Truncate(handle_, size_);
    const qint64 size = size_;
    Close();
    if (size == 0) disk_.RemoveFile(filePath_);
  }
  return error;
}

void JournalWriter::Remember(const QString& path, Chain chain) {
  if (remembered_ > kMostRemembered) {
    chains_.clear();
    remembered_ = 0;
  }
  Chain& known = chains_[path];
  remembered_ += chain.text.size() - known.text.size();
  known = std::move(chain);
}

int JournalWriter::Add(const HistoryFolder& folder, const QByteArray& when, const QString& path,
                       const QByteArray& text) {
  if (const int error = Open(folder, when); error != kNoError) return error;
  HistoryRecord record = WholeRecord(when, path, text);
  Chain chain{text};
  if (const auto known = chains_.constFind(path); known != chains_.constEnd()) {
    const QByteArray delta = LineDelta(known->text, text);
    if (known->deltas + delta.size() < record.body.size()) {
      chain.deltas = known->deltas + delta.size();
      record.kind = HistoryRecord::Kind::Lines;
      record.body = delta;
    }
  }
  const int error = Write(RecordText(record));
  if (error == kNoError) Remember(path, std::move(chain));
  return error;
}

int JournalWriter::AddNew(const HistoryFolder& folder, const QByteArray& when,
                          const QString& path) {
  if (const int error = Open(folder, when); error != kNoError) return error;
  const int error = Write(RecordText({when, {}, HistoryRecord::Kind::New, path, {}}));
  if (error == kNoError) Remember(path, {});
  return error;
}

}  // namespace tamo
