#include "history/linedelta.h"

#include <QByteArrayView>
#include <QHash>
#include <vector>

namespace tamo {
namespace {

// A line as short as an empty one stands anywhere: it is no place to go on from.
constexpr qsizetype kTelling = 5;

using Lines = std::vector<QByteArrayView>;

// Each with its LF; the last one has none when the text does not end in one.
Lines LinesOf(const QByteArray& text) {
  Lines lines;
  qsizetype at = 0;
  while (at < text.size()) {
    const qsizetype end = text.indexOf('\n', at);
    const qsizetype next = end < 0 ? text.size() : end + 1;
    lines.push_back(QByteArrayView(text).sliced(at, next - at));
    at = next;
  }
  return lines;
}

class DeltaWriter {
 public:
  DeltaWriter(const QByteArray& before, const QByteArray& after)
      : before_(LinesOf(before)), after_(LinesOf(after)) {
    for (size_t i = before_.size(); i-- > 0;) {
      if (before_[i].size() >= kTelling) place_.insert(before_[i], i);
    }
  }

  QByteArray Write() {
    for (const QByteArrayView line : after_) {
      const size_t at = Find(line);
      if (at == before_.size()) {
        NewLine(line);
      } else {
        OldLine(at);
      }
    }
    EndRun();
    return delta_;
  }

 private:
  bool Is(size_t at, QByteArrayView line) const {
    return at < before_.size() && before_[at] == line;
  }

  // Where the line stood: behind the one before it, or behind as many as were written anew, or
  // behind one that is gone, or anywhere.
  size_t Find(QByteArrayView line) const {
    for (const size_t at : {next_, next_ + fresh_, next_ + 1}) {
      if (Is(at, line)) return at;
    }
    return place_.value(line, before_.size());
  }

  void OldLine(size_t at) {
    if (end_ == begin_ || at != end_) {
      EndRun();
      begin_ = at;
    }
    end_ = next_ = at + 1;
    fresh_ = 0;
  }

  void NewLine(QByteArrayView line) {
    EndRun();
    ++fresh_;
    const bool ended = line.endsWith('\n');
    delta_ += ended ? '\t' : '~';
    delta_.append(line.data(), line.size());
    if (!ended) delta_ += '\n';
  }

  void EndRun() {
    if (end_ > begin_)
      delta_ += '=' + QByteArray::number(qulonglong{begin_} + 1) + '-' +
                QByteArray::number(qulonglong{end_}) + '\n';
    begin_ = end_ = 0;
  }

  const Lines before_;
  const Lines after_;
  QHash<QByteArrayView, size_t> place_;  // the first one, of lines that tell something
  QByteArray delta_;
  size_t begin_ = 0;  // the run of old lines that is being written; none when both are the same
  size_t end_ = 0;
  size_t next_ = 0;   // behind the last old line
  size_t fresh_ = 0;  // lines written anew since then
};

// The lines FROM-TO of `before`.
bool AppendRun(const Lines& before, QByteArrayView range, QByteArray& after) {
  const qsizetype dash = range.indexOf('-');
  if (dash < 0) return false;
  bool isFrom = false;
  bool isTo = false;
  const auto from = range.first(dash).toByteArray().toULongLong(&isFrom);
  const auto to = range.sliced(dash + 1).trimmed().toByteArray().toULongLong(&isTo);
  if (!isFrom || !isTo || from < 1 || to < from || to > before.size()) return false;
  for (auto i = from - 1; i < to; ++i) after.append(before[i].data(), before[i].size());
  return true;
}

}  // namespace

QByteArray LineDelta(const QByteArray& before, const QByteArray& after) {
  return DeltaWriter(before, after).Write();
}

bool ApplyLineDelta(const QByteArray& before, const QByteArray& delta, QByteArray& after) {
  after.clear();
  const Lines old = LinesOf(before);
  for (const QByteArrayView line : LinesOf(delta)) {
    const QByteArrayView rest = line.sliced(1);
    if (line.front() == '=') {
      if (!AppendRun(old, rest, after)) return false;
    } else if (line.front() == '\t') {
      after.append(rest.data(), rest.size());
    } else if (line.front() == '~' && rest.endsWith('\n')) {
      after.append(rest.data(), rest.size() - 1);
    } else {
      return false;
    }
  }
  return true;
}

}  // namespace tamo
