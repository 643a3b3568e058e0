#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace tamo {

// Bytes of a file as text: UTF-16 when they begin with its mark, else UTF-8, or Windows-1252 when
// they are not valid UTF-8 (folders of older machines); a byte-order mark is dropped.
QString DecodedText(const QByteArray& bytes);

// No text file has a NUL in it: what has is a picture, a program, or UTF-16 without its mark.
bool IsText(const QString& decoded);

// The whole lines of a text. CR LF, LF or CR ends a line; a last line without an end counts; an
// empty text has no line.
QStringList WholeLines(const QString& text);

// The fields of a text as the delimited read takes them: blanks at the start of a value are
// skipped, a comma or a line end ends it, blanks at its end stay. Quotes mean nothing; an empty
// line is an empty field.
QStringList DelimitedFields(const QString& text);

// Each line followed by CR LF.
QString JoinedLines(const QStringList& lines);

// Reads one record after the other; past the end it answers false and leaves `into` as it was.
class LineReader {
 public:
  LineReader() = default;
  explicit LineReader(QStringList records) : records_(std::move(records)) {}

  bool AtEnd() const { return next_ >= records_.size(); }
  bool Read(QString& into) {
    if (AtEnd()) return false;
    into = records_[next_++];
    return true;
  }
  void Skip(int count) { next_ += count; }

 private:
  QStringList records_;
  qsizetype next_ = 0;
};

}  // namespace tamo
