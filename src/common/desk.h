#pragma once

#include <QString>
#include <functional>
#include <vector>

#include "common/control.h"
#include "common/form.h"
#include "common/services.h"

namespace tamo {

// The windows of the program, which is in front, and where the focus is; and the one place where
// events enter the forms and failures come out.
//
// Moving the focus runs the old control's lost-focus handler, then the new control's got-focus
// handler, at once. A handler that moves the focus itself wins over the move that called it. Moving
// the focus to a hidden or disabled control, or to a control of a hidden form, does nothing. When
// the focus goes to another form, the field there loses it first; focus moves asked for by that
// handler stay inside its own form and bring no window to the front.
class Desk {
 public:
  explicit Desk(Messages& messages) : messages_(messages) {}
  Desk(const Desk&) = delete;
  Desk& operator=(const Desk&) = delete;

  // --- for forms ---
  void Show(Form& form, Form* owner = nullptr);  // visible, in front, active
  void Hide(Form& form);
  void Focus(Control& control);
  // The same, but a form that comes to the front by it does not run its activation routine: for a
  // measure that is handed over to the field that waits for it.
  void FocusWithoutActivation(Control& control);
  Form* Active() const { return active_; }
  Control* Focused() const;  // nullptr when no shown control has it
  Messages& GetMessages() const { return messages_; }

  const std::vector<Form*>& Forms() const { return forms_; }        // in order of creation
  const std::vector<Form*>& FrontToBack() const { return order_; }  // visible ones
  Form* Find(const QString& name) const;

  // --- where events enter ---
  // Runs `event`; a RunTimeFailure ends it and is shown in a message box. Events nest.
  void Dispatch(const std::function<void()>& event);
  void PressKey(Control& control, Key key);  // handlers, then the control's own action
  void TypeText(Control& control, const QString& text);
  void Paste(TextField& field, const QString& text);
  void ClickInto(Control& control);  // moves the focus there first, if it takes it
  void DoubleClick(Control& control);
  void RightClick(Control& control);
  void ClickRow(OrderedList& list, int row);
  void DoubleClickRow(OrderedList& list, int row);
  void RightClickRow(OrderedList& list, int row);  // selects the row first, with its event
  void TickRow(CheckList& list, int row);
  void ScrollTo(OrderedList& list, int row);
  void ChooseMenu(MenuEntry& entry);
  void UserFocus(Control& control);
  void UserActivate(Form& form);
  void CloseBox(Form& form);
  void Pick(FileBrowser& browser, const QString& path, bool twice);
  // The key handlers of the form and the control only, without the control's own editing: for a
  // widget that edits its text itself. True when the key was dropped or has been dealt with.
  bool HandleKey(Control& control, Key key);
  void EditedByUser(TextField& field, const QString& text, int caret);
  // What lies over a field has its keys before the form's handlers see them. True when the key has
  // been dealt with.
  bool TakenFirst(Control& control, const Key& key);
  // Tab and Shift+Tab from the focused control.
  void MoveFocus(bool forward);

  bool InEvent() const { return depth_ > 0; }
  std::function<bool(Control&, const Key&)> onKeyFirst;  // for TakenFirst
  std::function<void(TextField&)> onEdited;              // the user changed its text
  std::function<void()> onRest;  // after each outermost event, for the program; it may raise more
  std::function<void()> onSettled;  // then, for whoever shows the forms

 private:
  friend class Form;
  void Register(Form* form);
  void Unregister(Form* form);
  void Forget(const Control& control);
  void Activate(Form& form, bool runRoutine);
  void LoseFocus();
  void MoveTo(Control& control, bool runRoutine);
  void Refocus(Form& form);
  void MoveCaretToEnd(Control& control);

  Messages& messages_;
  std::vector<Form*> forms_;
  std::vector<Form*> order_;
  Form* active_ = nullptr;
  Control* focused_ = nullptr;
  Form* leaving_ = nullptr;  // the form whose field is losing the focus to another form
  int depth_ = 0;
  int moves_ = 0;
};

}  // namespace tamo
