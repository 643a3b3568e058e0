#pragma once

#include <QStringView>
#include <bit>
#include <cstring>

namespace tamo {

// Walks the whole lines of a text without copying them: CR LF, LF or CR ends a line, a last line
// without an end counts, an empty text has no line. The text outlives the scanner and the lines.
class LineScanner {
 public:
  LineScanner() = default;
  explicit LineScanner(QStringView text) : at_(text.utf16()), end_(text.utf16() + text.size()) {}

  bool Next(QStringView& line) {
    if (at_ == end_) return false;
    const char16_t* const begin = at_;
    const char16_t* const stop = LineEnd(begin);
    line = {begin, stop};
    at_ = stop;
    if (at_ != end_ && *at_++ == u'\r' && at_ != end_ && *at_ == u'\n') ++at_;
    return true;
  }

 private:
  static bool Ends(char16_t c) { return c == u'\r' || c == u'\n'; }

  // The first CR or LF from `at` on. Four characters are looked at together: taking 14 from each
  // turns the highest bit of those below 14 on, and that of the first of them is exact.
  const char16_t* LineEnd(const char16_t* at) const {
    constexpr quint64 kEach = 0x0001000100010001;
    while (std::endian::native == std::endian::little && end_ - at >= 4) {
      quint64 four = 0;
      std::memcpy(&four, at, sizeof four);
      const quint64 low = (four - kEach * 14) & ~four & (kEach << 15);
      if (low == 0) {
        at += 4;
        continue;
      }
      at += std::countr_zero(low) / 16;
      if (Ends(*at)) return at;
      ++at;
    }
    while (at != end_ && !Ends(*at)) ++at;
    return at;
  }

  const char16_t* at_ = nullptr;
  const char16_t* end_ = nullptr;
};

}  // namespace tamo
