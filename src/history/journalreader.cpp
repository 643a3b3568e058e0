#include "history/journalreader.h"

#include <QHash>

#include "common/failure.h"
#include "history/historyrecord.h"
#include "history/linedelta.h"

namespace tamo {
namespace {

using Kind = HistoryRecord::Kind;

// The texts of the files as the entries lead from one to the next.
class Chains {
 public:
  // False when the entry, or one that it needs, is damaged.
  bool Follow(const HistoryRecord& record, QByteArray& text) {
    text.clear();
    bool right = record.kind == Kind::New;
    if (!right) {
      const auto known = texts_.constFind(record.path);
      const bool based = record.kind == Kind::Whole || known != texts_.constEnd();
      right =
          based &&
          ApplyLineDelta(record.kind == Kind::Whole ? QByteArray() : *known, record.body, text) &&
          CheckOf(text) == record.check;
    }
    if (right) {
      texts_.insert(record.path, text);
    } else {
      texts_.remove(record.path);
    }
    return right;
  }

 private:
  QHash<QString, QByteArray> texts_;
};

}  // namespace

bool ReadJournalFile(Disk& disk, const QString& journal, const QString& below,
                     const std::function<void(const FormerState&)>& each) {
  QByteArray bytes;
  if (disk.Read(journal, bytes) != kNoError) return false;
  RecordScanner scanner(bytes);
  Chains chains;
  HistoryRecord record;
  FormerState state;
  while (scanner.Next(record)) {
    if (!record.path.startsWith(below)) continue;
    if (!chains.Follow(record, state.text)) continue;
    state.when = record.when;
    state.path = record.path;
    state.existed = record.kind != Kind::New;
    each(state);
  }
  return true;
}

void ReadJournal(Disk& disk, const HistoryFolder& folder, const QString& below,
                 const std::function<void(const FormerState&)>& each) {
  for (const QString& name : JournalFiles(disk, folder))
    ReadJournalFile(disk, folder.Journal(name), below, each);
}

}  // namespace tamo
