#pragma once

#include <QStringView>

namespace tamo {

// Walks the whole lines of a text without copying them: CR LF, LF or CR ends a line, a last line
// without an end counts, an empty text has no line. The text outlives the scanner and the lines.
class LineScanner {
 public:
  LineScanner() = default;
  explicit LineScanner(QStringView text) : text_(text) {}

  bool Next(QStringView& line) {
    const qsizetype size = text_.size();
    if (at_ >= size) return false;
    const char16_t* const chars = text_.utf16();
    qsizetype end = at_;
    while (end < size && chars[end] != u'\n' && chars[end] != u'\r') ++end;
    line = text_.sliced(at_, end - at_);
    at_ = end + 1;
    if (end + 1 < size && chars[end] == u'\r' && chars[end + 1] == u'\n') ++at_;
    return true;
  }

 private:
  QStringView text_;
  qsizetype at_ = 0;
};

}  // namespace tamo
