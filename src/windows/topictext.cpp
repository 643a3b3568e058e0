#include "windows/topictext.h"

#include <QApplication>

#include "windows/look.h"

namespace tamo {
namespace {

// No small letter, and some letter: heads are written so.
bool IsHead(const QString& line) {
  bool letter = false;
  for (const QChar c : line) {
    if (c.isLower()) return false;
    letter = letter || c.isUpper();
  }
  return letter;
}

// Columns: far to the right, or wide gaps in the line.
bool IsTable(const QString& line) {
  constexpr int kIndent = 4;
  const QString text = line.trimmed();
  return line.startsWith(QString(kIndent, u' ')) || text.contains(QStringLiteral("   "));
}

}  // namespace

void TopicText::highlightBlock(const QString& line) {
  QTextCharFormat format;
  const QFont plain = QApplication::font();
  if (line.trimmed().isEmpty()) return;
  if (IsTable(line)) {
    format.setFont(FixedFont());
  } else if (IsHead(line)) {
    QFont head = SectionFont();
    if (currentBlock().blockNumber() == 0) head.setPointSizeF(plain.pointSizeF() * 1.5);
    format.setFont(head);
  } else {
    return;
  }
  setFormat(0, static_cast<int>(line.size()), format);
}

}  // namespace tamo
