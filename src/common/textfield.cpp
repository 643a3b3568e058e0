#include <algorithm>

#include "common/control.h"
#include "common/form.h"

namespace tamo {

TextField::TextField(Form& form, const QString& name, int maxLength)
    : Control(form, name), maxLength_(maxLength) {
  form.Register(this);
}

void TextField::Take(const QString& text) {
  // Whatever changes before its place, or takes the whole text away, is another number.
  if (comma_ > 0 && text.left(comma_) != text_.left(comma_)) comma_ = -1;
  text_ = text;
  Changed();
  if (onChange) onChange();
}

void TextField::SetText(const QString& text) {
  if (text_ == text) return;
  selectionStart_ = 0;
  selectionLength_ = 0;
  comma_ = -1;
  Take(text);
}

void TextField::CommaDropped() {
  const bool stands = comma_ > 0 && comma_ < text_.size() && text_[comma_] == QLatin1Char(',');
  if ((comma_ > 0 && !stands) || selectionLength_ > 0 || selectionStart_ == 0) return;
  if (text_[selectionStart_ - 1].isDigit()) comma_ = selectionStart_;
}

QString TextField::Beside() const {
  if (comma_ < 0) return {};
  // In a field of any keys it stands, and ends the number that is read.
  const bool stands = comma_ < text_.size() && text_[comma_] == QLatin1Char(',');
  const qsizetype from = stands ? comma_ + 1 : comma_;
  qsizetype digits = 0;
  while (from + digits < text_.size() && text_[from + digits].isDigit()) ++digits;
  if (digits != 1 && digits != 2) return {};
  return QStringLiteral("taken as %1").arg(stands ? text_.left(comma_) : text_);
}

void TextField::SetReadOnly(bool is) {
  if (readOnly == is) return;
  readOnly = is;
  Changed();
}

void TextField::Select(int start, int length) {
  const int size = static_cast<int>(text_.size());
  start = std::clamp(start, 0, size);
  length = std::clamp(length, 0, size - start);
  if (start == selectionStart_ && length == selectionLength_) return;
  selectionStart_ = start;
  selectionLength_ = length;
  Changed();
}

void TextField::ReplaceSelection(const QString& typed) {
  if (readOnly) return;
  QString piece = typed;
  piece.replace(QLatin1String("\r\n"), QLatin1String("\n"));
  piece.replace(QLatin1Char('\r'), QLatin1Char('\n'));
  piece.replace(QLatin1Char('\n'), QLatin1String(multiLine ? "\r\n" : " "));
  QString text = text_;
  text.remove(selectionStart_, selectionLength_);
  if (maxLength_ > 0) piece = piece.left(std::max<qsizetype>(0, maxLength_ - text.size()));
  text.insert(selectionStart_, piece);
  selectionStart_ += static_cast<int>(piece.size());
  selectionLength_ = 0;
  if (text != text_) {
    Take(text);
  } else {
    Changed();
  }
}

void TextField::DeleteBackward() {
  if (readOnly) return;
  if (selectionLength_ == 0) {
    if (selectionStart_ == 0) return;
    // A line end counts as one character to whoever deletes it.
    const bool lineEnd =
        selectionStart_ > 1 && text_.mid(selectionStart_ - 2, 2) == QLatin1String("\r\n");
    selectionLength_ = lineEnd ? 2 : 1;
    selectionStart_ -= selectionLength_;
  }
  ReplaceSelection(QString());
}

void TextField::DeleteForward() {
  if (readOnly) return;
  if (selectionLength_ == 0) {
    if (selectionStart_ >= text_.size()) return;
    selectionLength_ = text_.mid(selectionStart_, 2) == QLatin1String("\r\n") ? 2 : 1;
  }
  ReplaceSelection(QString());
}

void TextField::SetByUser(const QString& text, int caret) {
  selectionStart_ = std::clamp(caret, 0, static_cast<int>(text.size()));
  selectionLength_ = 0;
  if (text != text_) Take(text);
}

}  // namespace tamo
