#pragma once

#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

#include "common/desk.h"

class QKeyEvent;

namespace tamo {

class Display;

// One widget that stands for one control. It hands what the user does to the Desk and, after each
// settled event, brings the widget to the control's state when that has changed. It decides
// nothing.
class Binding : public QObject {
 public:
  Binding(Display& display, Control& control, QWidget& widget);
  ~Binding() override;

  Control& GetControl() const { return control_; }
  QWidget& Widget() const { return widget_; }
  virtual QWidget& ClickTarget() const { return widget_; }

  // Brings the widget to the control's state; the base class does it for shown, enabled, hover.
  virtual void Apply();
  // The same for what needs the focus to be where it belongs: selected text.
  virtual void ApplyFocus() {}

 protected:
  Desk& GetDesk() const;
  Display& GetDisplay() const { return display_; }
  // Mouse and keys that all controls take alike; true when the event is dealt with.
  bool TakeCommon(QEvent* event);

 private:
  friend class Display;
  Display& display_;
  Control& control_;
  QWidget& widget_;
  bool dirty_ = false;
};

// All bindings of a Desk. The Desk decides everything; this brings the widgets after it, once for
// each settled event and only where something changed.
class Display : public QObject {
 public:
  explicit Display(Desk& desk);
  ~Display() override;

  Desk& GetDesk() { return desk_; }
  void Add(std::unique_ptr<Binding> binding);
  Binding* Of(const Control& control) const;

  void MarkDirty(Binding& binding);
  // A frame of the form was shown or hidden: all in it come or go with it.
  void MarkFormDirty(const Form& form);
  // Something that is no control changed: windows, notices, status lines are looked at again.
  void MarkDirty();
  void SyncNow();
  // The contents alone, without windows and focus.
  void ApplyContents();
  // Widgets are being brought to their controls' state: what they report now is not the user.
  bool Syncing() const { return syncing_ > 0; }

  // Set by who keeps the windows. `syncWindows` runs between the contents and the focus;
  // `windowOf` gives the window of a form or nullptr; `afterSync` runs last.
  std::function<void()> syncWindows;
  std::function<QWidget*(Form&)> windowOf;
  std::function<void()> afterSync;

  // Where the last right click was, in global coordinates: a pop-up opens there.
  QPoint popupPlace;

  // A key that went to a binding's widget. True: it has been dealt with; false: the widget's own
  // editing is to have it.
  bool TakeKey(Binding& binding, QKeyEvent& event);
  // A key that went to a window in which no control has the focus.
  bool TakeWindowKey(Form& form, QKeyEvent& event);
  // The focus is set anew once the present event is over: a menu or a dialog put it elsewhere.
  void RefocusLater();

 private:
  void SyncFocus();
  bool TakeListKey(Form& form, TextField* field, QKeyEvent& event);

  Desk& desk_;
  std::vector<std::unique_ptr<Binding>> bindings_;
  std::unordered_map<const Control*, Binding*> byControl_;
  std::vector<Binding*> dirty_;
  std::vector<Binding*> applied_;  // in this sync
  bool queued_ = false;
  int syncing_ = 0;
  Control* shownFocus_ = nullptr;
};

// A widget of a window that stands for no control (the find bar) keeps the focus until the Desk
// moves it: give it this property with the value true.
inline constexpr char kOwnFocus[] = "tamoOwnFocus";

// The key as the forms know it, none for keys that only a widget knows.
std::optional<Key> KeyOf(const QKeyEvent& event);

}  // namespace tamo
