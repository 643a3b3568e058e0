#include "windows/findplace.h"

#include <QScrollBar>
#include <QTextBlock>

#include "windows/look.h"

namespace tamo {

QString FindPlace::Holding(int rows) const {
  return rows == 1 ? QStringLiteral("no other line has it")
                   : QStringLiteral("%1 lines have it").arg(rows);
}

bool FindInRows::Choose(int row) {
  if (list_ == nullptr || row < 0 || row >= list_->Count() || !(list_->onSelect || list_->onClick))
    return false;
  display_.GetDesk().ClickRow(*list_, row);
  return true;
}

ListRows FindInText::Rows() const {
  return {edit_.toPlainText().split(u'\n')};
}

void FindInText::Mark(const QString& text) {
  text_ = text;
  row_ = -1;
  ShowMarks();
}

void FindInText::GoTo(int row) {
  row_ = row;
  ShowMarks();
  const QTextBlock block = edit_.document()->findBlockByNumber(row);
  if (row < 0 || !block.isValid()) return;
  const int lines = std::max(1, edit_.viewport()->height() / edit_.fontMetrics().lineSpacing());
  QScrollBar& bar = *edit_.verticalScrollBar();
  const int at = block.firstLineNumber();
  if (at < bar.value() || at >= bar.value() + lines - 1) bar.setValue(std::max(0, at - lines / 3));
}

// The caret stays where the reader left it: only the paint tells.
void FindInText::ShowMarks() {
  const Look& look = CurrentLook();
  QList<QTextEdit::ExtraSelection> marks;
  if (row_ >= 0) {
    QTextEdit::ExtraSelection line;
    line.cursor = QTextCursor(edit_.document()->findBlockByNumber(row_));
    line.format.setProperty(QTextFormat::FullWidthSelection, true);
    line.format.setBackground(look.accentGround);
    marks += line;
  }
  QTextCursor at(edit_.document());
  while (!text_.isEmpty() && !(at = edit_.document()->find(text_, at)).isNull()) {
    QTextEdit::ExtraSelection mark;
    mark.cursor = at;
    mark.format.setBackground(look.notice);
    mark.format.setFontUnderline(true);
    mark.format.setUnderlineColor(look.noticeLine);
    marks += mark;
  }
  edit_.setExtraSelections(marks);
}

}  // namespace tamo
