#include "history/journal.h"

#include <QTime>
#include <new>
#include <system_error>
#include <utility>
#include <vector>

#include "common/failure.h"
#include "history/deletedbid.h"

namespace tamo {
namespace {

using std::chrono::milliseconds;

constexpr milliseconds kLongestEnd{2000};
// Saves come in bursts: the thread is woken once for many.
constexpr milliseconds kGathering{20};
constexpr size_t kMostOpen = 200;          // former files that are held open
constexpr size_t kMostWaiting = 5000;      // beyond that, states are dropped
constexpr qint64 kLargestText = 8 << 20;   // bytes; no record is larger
constexpr qint64 kTendEvery = 4 << 20;     // bytes written
constexpr qint64 kLargestFile = 16 << 20;  // bytes; then another one is begun

bool ReadFormer(const FileReader& former, QByteArray& text) {
  if (former.Size() > kLargestText) return false;
  text.resize(former.Size());
  qint64 got = 0;
  if (former.ReadAt(0, text.data(), text.size(), got) != kNoError) return false;
  text.truncate(got);
  return true;
}

}  // namespace

QByteArray WhenText(QDate today) {
  return (today.toString(Qt::ISODate) + QLatin1Char(' ') +
          QTime::currentTime().toString(QStringLiteral("HH:mm:ss.zzz")))
      .toLatin1();
}

Journal::Journal(Setting setting) : setting_(std::move(setting)), writer_(setting_.disk) {
  try {
    thread_ = std::thread([this] { Work(); });
  } catch (const std::system_error&) {
    stop_ = true;  // no thread to be had: no journal
  }
}

Journal::~Journal() {
  Drain(kLongestEnd);
  {
    const std::lock_guard lock(mutex_);
    stop_ = true;
    waiting_.clear();
  }
  changed_.notify_all();
  if (thread_.joinable()) thread_.join();
}

void Journal::Replaced(const QString& path, std::shared_ptr<FileReader> former) {
  const HistoryFolder folder = setting_.folder();
  const QString relative = folder.Relative(path);
  if (relative.isEmpty() || relative.contains(QLatin1Char('\n'))) return;
  Entry entry{folder, setting_.now(), relative, std::move(former), std::nullopt};
  bool asleep = false;
  {
    const std::lock_guard lock(mutex_);
    if (stop_ || waiting_.size() >= kMostWaiting) return;
    if (entry.former != nullptr && waiting_.size() >= kMostOpen) {
      QByteArray text;
      if (!ReadFormer(*entry.former, text)) return;
      entry.former = nullptr;
      entry.text = std::move(text);
    }
    asleep = waiting_.empty() && !busy_;
    waiting_.push_back(std::move(entry));
  }
  if (asleep) changed_.notify_all();
}

bool Journal::MakeRoom() {
  QString inUse;
  {
    const std::lock_guard lock(mutex_);
    inUse = inUse_;
  }
  return DropOldest(setting_.disk, setting_.folder(), inUse);
}

bool Journal::Drain(milliseconds atMost) {
  std::unique_lock lock(mutex_);
  if (!thread_.joinable()) return false;
  hurry_ = true;
  changed_.notify_all();
  const bool done = changed_.wait_for(lock, atMost, [this] { return waiting_.empty() && !busy_; });
  hurry_ = false;
  return done;
}

void Journal::Work() {
  std::unique_lock lock(mutex_);
  for (;;) {
    changed_.wait(lock, [this] { return stop_ || !waiting_.empty(); });
    if (stop_) return;
    busy_ = true;
    changed_.wait_for(lock, kGathering, [this] { return stop_ || hurry_; });
    while (!waiting_.empty() && !stop_) {
      Entry entry = std::move(waiting_.front());
      waiting_.pop_front();
      lock.unlock();
      WriteDown(entry);
      lock.lock();
      inUse_ = writer_.FilePath();
    }
    busy_ = false;
    changed_.notify_all();
  }
}

void Journal::WriteDown(Entry& entry) {
  try {
    Tend(entry);
    QByteArray text = entry.text.value_or(QByteArray());
    const bool existed = entry.text.has_value() || entry.former != nullptr;
    if (entry.former != nullptr && !ReadFormer(*entry.former, text)) return;
    if (existed) {
      writer_.Add(entry.folder, entry.when, entry.path, text);
    } else {
      writer_.AddNew(entry.folder, entry.when, entry.path);
    }
  } catch (const std::bad_alloc&) {
    // One state less.
  }
}

// Once a day and folder, and after every few megabytes.
void Journal::Tend(const Entry& entry) {
  const QString day = QString::fromLatin1(entry.when.left(10));
  const QString now = day + entry.folder.Path();
  if (writer_.Size() > kLargestFile) writer_.Close();
  if (writer_.Size() < tendedSize_) tendedSize_ = 0;
  if (now == tended_ && writer_.Size() - tendedSize_ < kTendEvery) return;
  const QDate today = QDate::fromString(day, Qt::ISODate);
  if (now != tended_)
    ForgetDeleted(setting_.disk, entry.folder, today, setting_.limits.deletedDays);
  tended_ = now;
  tendedSize_ = writer_.Size();
  TendJournal(setting_.disk, entry.folder, today, setting_.limits);
}

}  // namespace tamo
