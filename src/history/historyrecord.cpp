#include "history/historyrecord.h"

#include <QCryptographicHash>
#include <array>
#include <utility>

#include "history/linedelta.h"

namespace tamo {
namespace {

constexpr qsizetype kCheckSize = 8;
constexpr char kNoCheck[] = "--------";

using Kind = HistoryRecord::Kind;
constexpr std::array<std::pair<Kind, const char*>, 3> kKinds = {
    {{Kind::Whole, "whole"}, {Kind::Lines, "lines"}, {Kind::New, "new"}}};

bool TakeWord(QByteArrayView& rest, qsizetype size, QByteArray& word) {
  if (size < 1 || rest.size() <= size || rest[size] != ' ') return false;
  word = rest.first(size).toByteArray();
  rest = rest.sliced(size + 1);
  return true;
}

bool ReadHead(QByteArrayView line, HistoryRecord& record) {
  QByteArrayView rest = line.trimmed();
  if (!rest.startsWith("@ ")) return false;
  rest = rest.sliced(2);
  QByteArray kind;
  if (!TakeWord(rest, kWhenSize, record.when) || !TakeWord(rest, kCheckSize, record.check) ||
      !TakeWord(rest, rest.indexOf(' '), kind))
    return false;
  record.path = QString::fromUtf8(rest);
  for (const auto& [value, name] : kKinds) {
    if (kind != name) continue;
    record.kind = value;
    return true;
  }
  return false;
}

}  // namespace

QByteArray CheckOf(const QByteArray& text) {
  return QCryptographicHash::hash(text, QCryptographicHash::Sha1).toHex().left(kCheckSize);
}

QByteArray RecordText(const HistoryRecord& record) {
  QByteArray text = "@ " + record.when + ' ' + (record.check.isEmpty() ? kNoCheck : record.check);
  for (const auto& [value, name] : kKinds) {
    if (record.kind == value) text += QByteArray(" ") + name + ' ';
  }
  return text + record.path.toUtf8() + '\n' + record.body;
}

HistoryRecord WholeRecord(const QByteArray& when, const QString& path, const QByteArray& text) {
  return {when, CheckOf(text), Kind::Whole, path, LineDelta({}, text)};
}

QByteArrayView RecordScanner::TakeLine() {
  const qsizetype end = rest_.indexOf('\n');
  const QByteArrayView line = end < 0 ? rest_ : rest_.first(end + 1);
  rest_ = rest_.sliced(line.size());
  return line;
}

bool RecordScanner::Next(HistoryRecord& record) {
  while (!rest_.isEmpty()) {
    if (!ReadHead(TakeLine(), record)) continue;
    record.body.clear();
    while (!rest_.isEmpty() && !rest_.startsWith('@')) {
      const QByteArrayView line = TakeLine();
      record.body.append(line.data(), line.size());
    }
    return true;
  }
  return false;
}

}  // namespace tamo
