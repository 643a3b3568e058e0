#include "common/merge.h"

#include <QHash>
#include <QStringList>
#include <algorithm>

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

QHash<QString, int> CountsOf(const QStringList& names) {
  QHash<QString, int> counts;
  for (const QString& name : names) ++counts[name];
  return counts;
}

// How often each name was added, or with `sign` -1 taken out, on the way from `base` to `now`.
QHash<QString, int> Changes(const QHash<QString, int>& base, const QHash<QString, int>& now,
                            int sign) {
  QHash<QString, int> changes;
  for (const QHash<QString, int>* side : {&base, &now}) {
    for (auto at = side->begin(); at != side->end(); ++at) {
      const int change = sign * (now.value(at.key()) - base.value(at.key()));
      if (change > 0) changes[at.key()] = change;
    }
  }
  return changes;
}

// What is left of `changes` without those that the other side made as well.
QHash<QString, int> Alone(QHash<QString, int> changes, const QHash<QString, int>& others) {
  changes.removeIf([&](QHash<QString, int>::iterator entry) {
    entry.value() -= others.value(entry.key());
    return entry.value() <= 0;
  });
  return changes;
}

bool HaveOneInCommon(const QHash<QString, int>& one, const QHash<QString, int>& other) {
  return std::any_of(one.keyBegin(), one.keyEnd(),
                     [&](const QString& name) { return other.contains(name); });
}

// The entries of `theirs` without what `mine` took out, and with what it added.
class Merge {
 public:
  Merge(FileKind kind, const QString& base, const QString& mine, const QString& theirs)
      : kind_(kind),
        was_(EntriesOf(kind, base)),
        own_(EntriesOf(kind, mine)),
        other_(EntriesOf(kind, theirs)) {
    const QHash<QString, int> before = CountsOf(was_.names);
    const QHash<QString, int> mineNow = CountsOf(own_.names);
    const QHash<QString, int> theirsNow = CountsOf(other_.names);
    const QHash<QString, int> theirsAdded = Changes(before, theirsNow, 1);
    const QHash<QString, int> theirsOut = Changes(before, theirsNow, -1);
    added_ = Alone(Changes(before, mineNow, 1), theirsAdded);
    bothChanged_ = !added_.isEmpty() &&
                   !Alone(theirsAdded, Changes(before, mineNow, 1)).isEmpty() &&
                   HaveOneInCommon(theirsOut, Changes(before, mineNow, -1));
    takenOut_ = Alone(Changes(before, mineNow, -1), theirsOut);
  }

  bool CanBeDone() const {
    if (other_.names.isEmpty() && other_.head.isEmpty() && !was_.names.isEmpty()) return false;
    if (kind_ != FileKind::Lines && kind_ != FileKind::Sheet) return true;
    return !bothChanged_ && (own_.head == was_.head || other_.head == was_.head ||
                             own_.head == other_.head || was_.head.isEmpty());
  }

  QString Text() {
    QString text;
    if (kind_ == FileKind::Sheet) {
      const bool changed = !was_.head.isEmpty() && !own_.head.isEmpty() && own_.head != was_.head;
      text = JoinedLines({changed ? own_.head : other_.head});
    }
    QStringList kept;
    for (qsizetype i = other_.names.size() - 1; i >= 0; --i) {
      if (!Take(takenOut_, other_.names[i])) kept.prepend(other_.texts[i]);
    }
    text += kept.join(QString());
    // Of lines of one text the last ones are the added ones; they stay in their order.
    QStringList added;
    for (qsizetype i = own_.names.size() - 1; i >= 0; --i) {
      if (Take(added_, own_.names[i])) added.prepend(own_.texts[i]);
    }
    return text + added.join(QString());
  }

 private:
  static bool Take(QHash<QString, int>& counts, const QString& name) {
    const auto at = counts.find(name);
    if (at == counts.end() || *at == 0) return false;
    --*at;
    return true;
  }

  FileKind kind_;
  Entries was_;
  Entries own_;
  Entries other_;
  QHash<QString, int> added_;
  QHash<QString, int> takenOut_;
  bool bothChanged_ = false;
};

}  // namespace

bool MergeTexts(FileKind kind, const QString& base, const QString& mine, const QString& theirs,
                QString& merged) {
  merged.clear();
  if (theirs == base || theirs == mine || mine == base) {
    merged = mine == base ? theirs : mine;
    return true;
  }
  if (kind == FileKind::Latest) merged = mine;
  if (kind == FileKind::Latest || kind == FileKind::Record) return kind == FileKind::Latest;
  Merge merge(kind, base, mine, theirs);
  if (!merge.CanBeDone()) return false;
  merged = merge.Text();
  return true;
}

}  // namespace tamo
