#pragma once

#include <QMenu>
#include <QMenuBar>
#include <memory>
#include <unordered_map>
#include <vector>

#include "windows/display.h"

namespace tamo {

// The menu bar and the pop-ups of one form. A hidden or disabled entry can't be chosen, by its
// mnemonic either.
class MenuBinder : public QObject {
 public:
  MenuBinder(Display& display, Form& form, QWidget& window);
  ~MenuBinder() override;

  QMenuBar* Bar() const { return bar_; }  // nullptr when the form has none
  QAction* ActionOf(const MenuEntry& entry) const;
  // Opens the pop-up that the form asks for; not blocking.
  void ShowPopup(const QPoint& place);
  void Apply();  // when an entry has changed

 private:
  void Build(MenuEntry& entry, QWidget& parent);

  Display& display_;
  Form& form_;
  QWidget& window_;
  QMenuBar* bar_ = nullptr;
  std::unordered_map<const MenuEntry*, QAction*> actions_;
  bool dirty_ = true;
};

}  // namespace tamo
