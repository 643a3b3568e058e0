#include "common/merge.h"

#include <QSet>
#include <QStringList>

#include "common/textlines.h"

namespace tamo {
namespace {

struct Entries {
  QString head;       // of a sheet
  QStringList names;  // what tells one entry from another
  QStringList texts;  // likewise many: the lines of each entry
};

Entries EntriesOf(FileKind kind, const QString& text) {
  QStringList lines = WholeLines(text);
  Entries entries;
  if (kind == FileKind::Sheet && !lines.isEmpty()) entries.head = lines.takeFirst();
  const qsizetype step = kind == FileKind::Pairs ? 2 : 1;
  for (qsizetype at = 0; at < lines.size(); at += step) {
    entries.names += lines[at];
    entries.texts += JoinedLines(lines.mid(at, step));
  }
  return entries;
}

QSet<QString> SetOf(const QStringList& names) {
  return {names.begin(), names.end()};
}

}  // namespace

bool MergeTexts(FileKind kind, const QString& base, const QString& mine, const QString& theirs,
                QString& merged) {
  merged.clear();
  if (theirs == base || theirs == mine || mine == base) {
    merged = mine == base ? theirs : mine;
    return true;
  }
  if (kind == FileKind::Record) return false;
  const Entries was = EntriesOf(kind, base);
  const Entries own = EntriesOf(kind, mine);
  const Entries other = EntriesOf(kind, theirs);
  const QSet<QString> known = SetOf(was.names);
  const QSet<QString> kept = SetOf(own.names);
  QSet<QString> there = SetOf(other.names);
  if (kind == FileKind::Sheet) {
    const bool changed = !was.head.isEmpty() && !own.head.isEmpty() && own.head != was.head;
    merged = JoinedLines({changed ? own.head : other.head});
  }
  for (qsizetype i = 0; i < other.names.size(); ++i) {
    const bool takenOut = known.contains(other.names[i]) && !kept.contains(other.names[i]);
    if (!takenOut) merged += other.texts[i];
  }
  for (qsizetype i = 0; i < own.names.size(); ++i) {
    if (known.contains(own.names[i]) || there.contains(own.names[i])) continue;
    there.insert(own.names[i]);
    merged += own.texts[i];
  }
  return true;
}

}  // namespace tamo
