#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>

#include "windows/display.h"

class QContextMenuEvent;

namespace tamo {

// What a field of one line and a field of several lines have in common: the click, the keys, and
// the selection, which is the field's own only while it has the focus.
class AnyFieldBinding : public Binding {
 public:
  AnyFieldBinding(Display& display, TextField& field, QWidget& widget);

  TextField& Field() const { return field_; }
  void Apply() override;
  void ApplyFocus() override;

 protected:
  virtual void ShowText() = 0;
  virtual void ShowSelection() = 0;
  virtual void ShowNoSelection() = 0;
  virtual bool HasSelection() const = 0;
  // Pastes in its own way; false when nothing may be pasted here.
  virtual bool Paste() = 0;

  // The widget's own editing changed the text, or moved the caret.
  void Edited(QString text, int caret);
  void Selected(int start, int length);

  bool eventFilter(QObject* object, QEvent* event) override;
  bool Quiet() const { return GetDisplay().Syncing() || quiet_ > 0; }

 private:
  bool TakeMouse(QEvent* event);
  bool TakeContextMenu(QContextMenuEvent& event);
  void HandOn(QObject& object, QEvent& event);
  bool TakeInputMethod(QEvent* event, QObject* object);

  TextField& field_;
  int quiet_ = 0;
  bool pressedIn_ = false;  // the press that brought the focus here is still down
};

class LineBinding : public AnyFieldBinding {
 public:
  LineBinding(Display& display, TextField& field, QLineEdit& edit);

 protected:
  void ShowText() override;
  void ShowSelection() override;
  void ShowNoSelection() override;
  bool HasSelection() const override { return edit_.hasSelectedText(); }
  bool Paste() override;

 private:
  void ShowBeside();

  QLineEdit& edit_;
  QPointer<QLabel> beside_;
};

class TextBinding : public AnyFieldBinding {
 public:
  TextBinding(Display& display, TextField& field, QPlainTextEdit& edit);
  QWidget& ClickTarget() const override { return *edit_.viewport(); }

 protected:
  void ShowText() override;
  void ShowSelection() override;
  void ShowNoSelection() override;
  bool HasSelection() const override { return edit_.textCursor().hasSelection(); }
  bool Paste() override;

 private:
  QPlainTextEdit& edit_;
};

}  // namespace tamo
