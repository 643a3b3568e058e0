#pragma once

#include <QString>
#include <functional>
#include <memory>
#include <vector>

#include "common/control.h"

namespace tamo {

class Desk;

// One window's logic object: its controls, menus and handlers. Created once, lives until the
// program ends; shown and hidden, never rebuilt.
class Form {
 public:
  Form(Desk& desk, const QString& name);
  virtual ~Form();
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  Desk& GetDesk() const { return desk_; }
  const QString& Name() const { return name_; }
  const QString& Caption() const { return caption_; }
  void SetCaption(const QString& caption);

  bool Visible() const { return visible_; }
  Form* OwnerForm() const { return owner_; }
  void Show(Form* owner = nullptr);  // Desk::Show
  void Hide();                       // Desk::Hide
  // The control that has the focus, or had it when this form was last in front; nullptr for none.
  Control* ActiveControl() const { return active_; }

  const std::vector<Control*>& Controls() const {
    return controls_;
  }  // in order of creation, which is the tab order
  const std::vector<MenuEntry*>& Menus() const {
    return menus_;
  }                                          // all entries, those of the bar and of pop-ups
  Control* Find(const QString& name) const;  // no menu entries
  MenuEntry* FindMenu(const QString& name) const;
  // A text of the form that is no control (RFSForm.Flag, ...): named so that a scenario can look at
  // it.
  void AddText(const QString& name, const QString* text);
  const QString* FindText(const QString& name) const;

  std::function<void()> onActivate;    // became the front window
  std::function<void()> onDeactivate;  // another window of the program became it, or it was hidden
  std::function<bool()>
      onClose;  // the window's close box; false keeps it open. Default: the form is hidden
  // Keys that the form sees before its focused control (key preview).
  std::function<void(Key&)> onKeyPreview;
  // The popup that a right click asked for, until the display has shown it.
  MenuEntry* openPopup = nullptr;
  void PopUp(MenuEntry& popup);

  // Called by the constructors of controls and menu entries.
  void Register(Control* control);
  void RegisterMenu(MenuEntry* entry);
  // Called by the destructor of a control: it has no focus any more.
  void Forget(const Control& control);

  std::function<void()> observer;  // display side: caption, visible, popup changed
  void Changed();

 private:
  friend class Desk;

  Desk& desk_;
  QString name_;
  QString caption_;
  bool visible_ = false;
  Form* owner_ = nullptr;
  Control* active_ = nullptr;  // the control that has, or last had, the focus
  std::vector<Control*> controls_;
  std::vector<MenuEntry*> menus_;
  std::vector<std::pair<QString, const QString*>> texts_;
};

}  // namespace tamo
