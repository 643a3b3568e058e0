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
    // Both searches look at many characters at a time; the next line feed may lie lines away.
    if (feed_ < at_) {
      feed_ = text_.indexOf(u'\n', at_);
      if (feed_ < 0) feed_ = size;
    }
    const QStringView upTo = text_.sliced(at_, feed_ - at_);
    const qsizetype back = upTo.indexOf(u'\r');
    line = back < 0 ? upTo : upTo.first(back);
    at_ += line.size() + 1;
    if (back >= 0 && at_ == feed_) ++at_;
    return true;
  }

 private:
  QStringView text_;
  qsizetype at_ = 0;
  qsizetype feed_ = -1;  // the next line feed at or behind at_, or the end of the text
};

}  // namespace tamo
