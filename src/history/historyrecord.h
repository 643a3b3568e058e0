#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

namespace tamo {

// One entry of the journal or of a version: what stood in a file at some moment. A head, then the
// lines of the text:
//
//   @ 2026-11-22 10:15:03.120 1a2b3c4d lines Projects/12-2611001/Rooms/Office.rfs
//
// "whole": every line of it, each behind a tab. "lines": its delta (linedelta.h) from the entry of
// the same file before this one. "new": there was no such file, and no line follows. The number
// between is the begin of the text's SHA-1 in hex; a text that does not meet it is not used.
struct HistoryRecord {
  enum class Kind { Whole, Lines, New };
  QByteArray when;  // 23 characters, of the same order as the times; local time
  QByteArray check;
  Kind kind = Kind::Whole;
  QString path;  // below the data folder, with slashes
  QByteArray body;
};

inline constexpr qsizetype kWhenSize = 23;

QByteArray CheckOf(const QByteArray& text);
QByteArray RecordText(const HistoryRecord& record);
HistoryRecord WholeRecord(const QByteArray& when, const QString& path, const QByteArray& text);

// Walks through the entries of a journal or a version, past whatever is none.
class RecordScanner {
 public:
  explicit RecordScanner(QByteArrayView text) : rest_(text) {}
  bool Next(HistoryRecord& record);

 private:
  QByteArrayView TakeLine();

  QByteArrayView rest_;
};

}  // namespace tamo
