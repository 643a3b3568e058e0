#include "player/caret.h"

namespace tamo::player {
namespace {

constexpr QChar kCaret = QLatin1Char('^');
constexpr char16_t kDelete = 127;
constexpr char16_t kLetterOffset = 64;

bool IsControl(QChar c) {
  return c.unicode() < 32 || c.unicode() == kDelete;
}

// The character that ^`c` stands for; a null text when it stands for none.
QString Meaning(QChar c) {
  if (c == kCaret) return QString(kCaret);
  if (c == QLatin1Char('?')) return QString(QChar(kDelete));
  const char16_t code = c.toUpper().unicode();
  if (code >= kLetterOffset && code < kLetterOffset + 32)
    return QString(QChar(static_cast<char16_t>(code - kLetterOffset)));
  return {};
}

}  // namespace

QString Shown(const QString& text) {
  QString shown;
  shown.reserve(text.size());
  for (const QChar c : text) {
    if (c == kCaret) {
      shown += QStringLiteral("^^");
    } else if (c.unicode() == kDelete) {
      shown += QStringLiteral("^?");
    } else if (IsControl(c)) {
      shown += kCaret;
      shown += QChar(static_cast<char16_t>(c.unicode() + kLetterOffset));
    } else {
      shown += c;
    }
  }
  return shown;
}

QString Unshown(const QString& text) {
  QString meant;
  meant.reserve(text.size());
  for (qsizetype i = 0; i < text.size(); ++i) {
    const QString meaning =
        text[i] == kCaret && i + 1 < text.size() ? Meaning(text[i + 1]) : QString();
    if (meaning.isNull()) {
      meant += text[i];
    } else {
      meant += meaning;
      ++i;
    }
  }
  return meant;
}

QString Printed(const QString& shown) {
  QString printed;
  printed.reserve(shown.size());
  for (qsizetype i = 0; i < shown.size(); ++i) {
    const bool sign = shown[i] == kCaret && i + 1 < shown.size();
    if (sign && shown[i + 1] == QLatin1Char('I')) {
      printed += QLatin1Char('\t');
      ++i;
    } else {
      printed += shown[i];
      if (sign) printed += shown[++i];
    }
  }
  return printed;
}

QString Respelled(const QString& written) {
  return written == QLatin1String(kNoLineEnd) ? written : Shown(Unshown(written));
}

namespace {

QStringList Pieces(const QString& text) {
  QStringList lines;
  if (text.isEmpty()) return lines;
  for (const QString& line : text.split(QStringLiteral("\r\n"))) lines += Shown(line);
  return lines;
}

}  // namespace

// A line end closes its line and begins no other, as in a block.
QStringList ShownLines(const QString& text) {
  QStringList lines = Pieces(text);
  if (lines.size() > 1 && lines.last().isEmpty()) lines.removeLast();
  return lines;
}

QStringList ShownFileLines(const QString& content) {
  QStringList lines = Pieces(content);
  if (lines.isEmpty()) return lines;
  if (lines.last().isEmpty()) {
    lines.removeLast();
  } else {
    lines += QLatin1String(kNoLineEnd);
  }
  return lines;
}

QString FileContent(const QStringList& block) {
  QString content;
  for (qsizetype i = 0; i < block.size(); ++i) {
    if (i == block.size() - 1 && block[i] == QLatin1String(kNoLineEnd)) {
      content.chop(2);
    } else {
      content += Unshown(block[i]) + QStringLiteral("\r\n");
    }
  }
  return content;
}

}  // namespace tamo::player
