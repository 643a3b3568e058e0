#include "plans/pdfbytes.h"

#include <QList>
#include <cstring>

namespace tamo {
namespace {

constexpr int kDeepest = 100;

bool IsBlank(char c) {
  return c == ' ' || c == '\n' || c == '\r' || c == '\t' || c == '\f' || c == '\0';
}

bool IsRegular(char c) {
  return !IsBlank(c) && std::strchr("()<>[]{}/%", c) == nullptr;
}

// Goes over a text, object by object. A place behind its end means that something was not whole.
class Walk {
 public:
  explicit Walk(const QByteArray& text) : text_(text) {}

  bool Lost() const { return at_ > text_.size(); }
  qsizetype At() const { return at_; }
  char Here(qsizetype ahead = 0) const {
    return at_ + ahead < text_.size() ? text_[at_ + ahead] : '\0';
  }
  bool Take(const char* word) {
    SkipBlanks();
    const auto length = static_cast<qsizetype>(std::strlen(word));
    if (text_.mid(at_, length) != word) return false;
    at_ += length;
    return true;
  }
  void SkipBlanks() {
    while (at_ < text_.size() && (IsBlank(text_[at_]) || text_[at_] == '%')) {
      if (text_[at_] == '%') {
        while (at_ < text_.size() && text_[at_] != '\n' && text_[at_] != '\r') ++at_;
      } else {
        ++at_;
      }
    }
  }

  // The next object as it is written; empty when there is none.
  QByteArray Next() {
    SkipBlanks();
    const qsizetype from = at_;
    Skip(0);
    return Lost() ? QByteArray() : text_.mid(from, at_ - from);
  }

 private:
  void Lose() { at_ = text_.size() + 1; }

  void Skip(int depth) {
    SkipBlanks();
    if (depth > kDeepest || at_ >= text_.size()) return Lose();
    if (Here() == '(') return SkipString();
    if (Here() == '<' && Here(1) == '<') return SkipUntil(">>", 2, depth);
    if (Here() == '[') return SkipUntil("]", 1, depth);
    if (Here() == '<') return SkipHex();
    const bool name = Here() == '/';
    if (name) ++at_;
    if (!name && !IsRegular(Here())) return Lose();
    if (SkipRegular() && !name) SkipReference();
  }
  // True for a number without a sign or a point.
  bool SkipRegular() {
    bool digits = true;
    while (at_ < text_.size() && IsRegular(text_[at_])) {
      digits = digits && text_[at_] >= '0' && text_[at_] <= '9';
      ++at_;
    }
    return digits;
  }
  // The rest of "12 0 R", when it is one.
  void SkipReference() {
    const qsizetype before = at_;
    SkipBlanks();
    const qsizetype from = at_;
    const bool number = SkipRegular() && at_ > from;
    SkipBlanks();
    const bool reference =
        number && Here() == 'R' && !IsRegular(at_ + 1 < text_.size() ? text_[at_ + 1] : ' ');
    at_ = reference ? at_ + 1 : before;
  }
  void SkipString() {
    int open = 0;
    for (; at_ < text_.size(); ++at_) {
      const char c = text_[at_];
      if (c == '\\') ++at_;
      if (c == '(') ++open;
      if (c == ')' && --open == 0) {
        ++at_;
        return;
      }
    }
    Lose();
  }
  void SkipHex() {
    const qsizetype end = text_.indexOf('>', at_);
    at_ = end < 0 ? text_.size() + 1 : end + 1;
  }
  void SkipUntil(const char* end, qsizetype head, int depth) {
    at_ += head;
    while (!Lost() && !Take(end)) Skip(depth + 1);
  }

  const QByteArray& text_;
  qsizetype at_ = 0;
};

}  // namespace

std::vector<PdfEntry> EntriesOf(const QByteArray& text) {
  Walk walk(text);
  std::vector<PdfEntry> entries;
  if (!walk.Take("<<")) return {};
  while (!walk.Take(">>")) {
    PdfEntry entry;
    const qsizetype from = walk.At();  // Take has gone over the blanks
    entry.key = walk.Next();
    entry.value = walk.Next();
    if (!walk.Lost()) entry.whole = text.mid(from, walk.At() - from);
    if (!entry.key.startsWith('/') || entry.value.isEmpty()) return {};
    entries.push_back(std::move(entry));
  }
  return entries;
}

bool ElementsOf(const QByteArray& text, std::vector<QByteArray>& elements) {
  Walk walk(text);
  if (!walk.Take("[")) return false;
  while (!walk.Take("]")) {
    elements.push_back(walk.Next());
    if (elements.back().isEmpty()) return false;
  }
  return true;
}

int ReferenceIn(const QByteArray& text) {
  const QList<QByteArray> words = text.simplified().split(' ');
  return words.size() == 3 && words[2] == "R" ? words[0].toInt() : 0;
}

bool MayHoldStrings(QByteArray text) {
  text.replace("<<", "");
  return text.contains('(') || text.contains('<');
}

QByteArray BehindObjectHead(const QByteArray& text, int number) {
  Walk walk(text);
  if (walk.Next().toInt() != number) return {};
  walk.Next();
  return walk.Take("obj") ? text.mid(walk.At()) : QByteArray();
}

}  // namespace tamo
