#include "windows/fieldbinding.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTextCursor>
#include <algorithm>

#include "windows/fieldmenu.h"
#include "windows/formwindow.h"
#include "windows/look.h"
#include "windows/roles.h"

namespace tamo {
namespace {

// A line end of a field is CR LF, of the widget a single LF.
QString ForWidget(QString text) {
  return text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
}

QString ForField(QString text) {
  text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
  text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
  return text.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
}

int WidgetPlace(const QString& fieldText, int place) {
  return place - static_cast<int>(fieldText.left(place).count(QLatin1String("\r\n")));
}

int FieldPlace(const QString& widgetText, int place) {
  return place + static_cast<int>(widgetText.left(place).count(QLatin1Char('\n')));
}

}  // namespace

AnyFieldBinding::AnyFieldBinding(Display& display, TextField& field, QWidget& widget)
    : Binding(display, field, widget), field_(field) {
  widget.setFocusPolicy(field.takesFocus ? Qt::TabFocus : Qt::NoFocus);
}

void AnyFieldBinding::Apply() {
  Binding::Apply();
  ShowText();
}

void AnyFieldBinding::ApplyFocus() {
  if (pressedIn_) return;
  if (field_.HasFocus()) {
    ShowSelection();
  } else {
    ShowNoSelection();
  }
}

void AnyFieldBinding::Edited(QString text, int caret) {
  if (Quiet() || text == field_.Text()) return;
  if (!field_.multiLine) {
    for (QChar& c : text) {
      if (c == QLatin1Char('\n') || c == QLatin1Char('\r')) c = QLatin1Char(' ');
    }
  } else if (field_.MaxLength() > 0) {
    text.truncate(std::max(field_.MaxLength(), static_cast<int>(field_.Text().size())));
  }
  GetDisplay().MarkDirty(*this);
  GetDesk().EditedByUser(field_, text, caret);
}

void AnyFieldBinding::Selected(int start, int length) {
  if (Quiet() || pressedIn_ || !field_.HasFocus()) return;
  field_.Select(start, length);
}

// The press that brings the focus selects what the form selects (as a rule the whole text); a drag
// from there selects by hand.
bool AnyFieldBinding::TakeMouse(QEvent* event) {
  const auto* mouse = static_cast<QMouseEvent*>(event);
  if (mouse->button() != Qt::LeftButton) return false;
  if (event->type() == QEvent::MouseButtonPress) {
    const bool had = field_.HasFocus();
    GetDesk().ClickInto(field_);
    if (!field_.HasFocus()) return true;
    pressedIn_ = !had;
    return false;
  }
  if (event->type() == QEvent::MouseButtonDblClick && field_.onDoubleClick) {
    GetDesk().DoubleClick(field_);
    return true;
  }
  if (event->type() == QEvent::MouseButtonRelease && pressedIn_) {
    pressedIn_ = false;
    if (HasSelection()) return false;
    GetDisplay().MarkDirty(*this);
    GetDisplay().SyncNow();
    return true;
  }
  return false;
}

// Characters that come whole (composed, or from another keyboard) pass the same handlers as typed
// ones.
bool AnyFieldBinding::TakeInputMethod(QEvent* event, QObject* object) {
  const auto* input = static_cast<QInputMethodEvent*>(event);
  QString kept;
  for (const QChar c : input->commitString()) {
    if (!GetDesk().HandleKey(field_, Key::Typed(c))) kept += c;
  }
  if (kept == input->commitString()) return false;
  QInputMethodEvent rest(input->preeditString(), input->attributes());
  rest.setCommitString(kept, input->replacementStart(), input->replacementLength());
  object->event(&rest);
  return true;
}

// A field with a pop-up of its own has this one with Shift.
bool AnyFieldBinding::TakeContextMenu(QContextMenuEvent& event) {
  if (field_.onRightClick && !event.modifiers().testFlag(Qt::ShiftModifier))
    return TakeCommon(&event);
  if (field_.takesFocus && !field_.HasFocus()) GetDesk().UserFocus(field_);
  const bool keys = event.reason() == QContextMenuEvent::Keyboard;
  ShowFieldMenu(Widget(),
                keys ? Widget().mapToGlobal(QPoint(kGrid, Widget().height())) : event.globalPos(),
                [this] { Paste(); });
  return true;
}

// To the widget, which changes nothing of the field by it.
void AnyFieldBinding::HandOn(QObject& object, QEvent& event) {
  ++quiet_;
  object.event(&event);
  --quiet_;
}

bool AnyFieldBinding::eventFilter(QObject* object, QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress:
      if (object != &Widget()) return false;
      if (static_cast<QKeyEvent*>(event)->matches(QKeySequence::Paste) && Paste()) return true;
      return TakeCommon(event);
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
      if (object != &ClickTarget()) return false;
      if (TakeMouse(event)) return true;
      if (static_cast<QMouseEvent*>(event)->button() == Qt::RightButton &&
          static_cast<QMouseEvent*>(event)->modifiers().testFlag(Qt::ShiftModifier))
        return true;
      return event->type() == QEvent::MouseButtonPress && TakeCommon(event);
    case QEvent::InputMethod:
      return object == &Widget() && TakeInputMethod(event, object);
    case QEvent::FocusIn: {
      if (object != &Widget()) return false;
      if (static_cast<QFocusEvent*>(event)->reason() != Qt::ShortcutFocusReason)
        return TakeCommon(event);
      // A mnemonic selects a field's whole text; here the form says what is selected.
      HandOn(*object, *event);
      GetDisplay().MarkDirty(*this);
      TakeCommon(event);
      return true;
    }
    case QEvent::FocusOut: {
      // Losing the keyboard to a menu or to another program takes nothing from the field.
      if (object != &Widget()) return false;
      HandOn(*object, *event);
      pressedIn_ = false;
      return true;
    }
    case QEvent::ContextMenu:
      return TakeContextMenu(*static_cast<QContextMenuEvent*>(event));
    case QEvent::DragEnter:
      // A plan is for the window, not for the field's text.
      event->ignore();
      return !DroppedPlan(static_cast<const QDropEvent*>(event)->mimeData()).isEmpty();
    default:
      return object == &Widget() && TakeCommon(event);
  }
}

LineBinding::LineBinding(Display& display, TextField& field, QLineEdit& edit)
    : AnyFieldBinding(display, field, edit), edit_(edit) {
  connect(&edit, &QLineEdit::textEdited, this,
          [this](const QString& text) { Edited(text, edit_.cursorPosition()); });
  const auto selected = [this] {
    if (edit_.hasSelectedText()) {
      Selected(edit_.selectionStart(), static_cast<int>(edit_.selectedText().size()));
    } else {
      Selected(edit_.cursorPosition(), 0);
    }
  };
  connect(&edit, &QLineEdit::selectionChanged, this, selected);
  connect(&edit, &QLineEdit::cursorPositionChanged, this, selected);
}

// The widget would make two blanks of the line end that comes with a copied line.
bool LineBinding::Paste() {
  if (edit_.isReadOnly()) return false;
  edit_.insert(
      QGuiApplication::clipboard()->text().replace(QLatin1String("\r\n"), QLatin1String(" ")));
  return true;
}

void LineBinding::ShowText() {
  const TextField& field = Field();
  const int size = static_cast<int>(field.Text().size());
  // The limit holds for typing; a longer text that the program put there stays whole.
  constexpr int kNoLimit = 1 << 26;
  const int most = field.MaxLength() > 0 ? std::max(field.MaxLength(), size) : kNoLimit;
  if (edit_.maxLength() != most) edit_.setMaxLength(most);
  if (edit_.text() != field.Text()) edit_.setText(field.Text());
  if (edit_.isReadOnly() != field.readOnly) {
    edit_.setReadOnly(field.readOnly);
  }
  ShowBeside();
}

// A tag at the field's right end, over whatever stands there.
void LineBinding::ShowBeside() {
  const QString text = Field().Beside();
  if (beside_.isNull()) {
    if (text.isEmpty()) return;
    beside_ = new QLabel(edit_.window());
    GiveRole(*beside_, Role::Tag);
    beside_->setFont(PromptFont());
    beside_->setAttribute(Qt::WA_TransparentForMouseEvents);
  }
  edit_.setAccessibleDescription(text);
  beside_->setVisible(!text.isEmpty() && edit_.isVisible());
  if (text.isEmpty()) return;
  beside_->setText(text);
  beside_->adjustSize();
  const QPoint end = edit_.mapTo(edit_.window(), QPoint(edit_.width() + kGrid / 2, 0));
  const int left = std::min(end.x(), edit_.window()->width() - beside_->width());
  beside_->move(left, end.y() + (edit_.height() - beside_->height()) / 2);
  beside_->raise();
}

void LineBinding::ShowSelection() {
  const int start = Field().SelectionStart();
  const int length = Field().SelectionLength();
  const int now = edit_.hasSelectedText() ? static_cast<int>(edit_.selectedText().size()) : 0;
  if (length > 0) {
    if (now != length || edit_.selectionStart() != start) edit_.setSelection(start, length);
  } else if (now > 0 || edit_.cursorPosition() != start) {
    edit_.deselect();
    edit_.setCursorPosition(start);
  }
}

// A field at rest shows the beginning of its text.
void LineBinding::ShowNoSelection() {
  if (edit_.hasSelectedText()) edit_.deselect();
  if (edit_.cursorPosition() != 0) edit_.setCursorPosition(0);
}

TextBinding::TextBinding(Display& display, TextField& field, QPlainTextEdit& edit)
    : AnyFieldBinding(display, field, edit), edit_(edit) {
  edit.setTabChangesFocus(true);
  edit.viewport()->installEventFilter(this);
  connect(&edit, &QPlainTextEdit::textChanged, this, [this] {
    const QString text = edit_.toPlainText();
    Edited(ForField(text), FieldPlace(text, edit_.textCursor().position()));
  });
  const auto selected = [this] {
    if (Quiet()) return;
    const QTextCursor cursor = edit_.textCursor();
    const QString text = edit_.toPlainText();
    const int start = FieldPlace(text, cursor.selectionStart());
    Selected(start, FieldPlace(text, cursor.selectionEnd()) - start);
  };
  connect(&edit, &QPlainTextEdit::selectionChanged, this, selected);
  connect(&edit, &QPlainTextEdit::cursorPositionChanged, this, selected);
}

bool TextBinding::Paste() {
  if (edit_.isReadOnly()) return false;
  edit_.paste();
  return true;
}

void TextBinding::ShowText() {
  const QString text = ForWidget(Field().Text());
  if (edit_.toPlainText() != text) edit_.setPlainText(text);
  if (edit_.isReadOnly() != Field().readOnly) edit_.setReadOnly(Field().readOnly);
}

void TextBinding::ShowSelection() {
  const QString& text = Field().Text();
  const int start = WidgetPlace(text, Field().SelectionStart());
  const int end = WidgetPlace(text, Field().SelectionStart() + Field().SelectionLength());
  QTextCursor cursor = edit_.textCursor();
  if (cursor.selectionStart() == start && cursor.selectionEnd() == end) return;
  cursor.setPosition(start);
  cursor.setPosition(end, QTextCursor::KeepAnchor);
  edit_.setTextCursor(cursor);
}

void TextBinding::ShowNoSelection() {
  QTextCursor cursor = edit_.textCursor();
  if (!cursor.hasSelection()) return;
  cursor.clearSelection();
  edit_.setTextCursor(cursor);
}

}  // namespace tamo
