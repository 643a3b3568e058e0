#include "windows/menubinder.h"

#include <QApplication>

namespace tamo {
namespace {

// The caption without the underlined letter of a hidden entry: its key must do nothing.
QString WithoutMnemonic(QString caption) {
  caption.replace(QLatin1String("&&"), QLatin1String("\1"));
  caption.remove(QLatin1Char('&'));
  return caption.replace(QLatin1Char('\1'), QLatin1String("&&"));
}

}  // namespace

MenuBinder::MenuBinder(Display& display, Form& form, QWidget& window)
    : display_(display), form_(form), window_(window) {
  for (MenuEntry* entry : form.Menus()) {
    entry->observer = [this] {
      dirty_ = true;
      display_.MarkDirty();
    };
    if (entry->Parent() != nullptr) continue;
    if (!entry->IsPopup() && bar_ == nullptr) {
      bar_ = new QMenuBar(&window);
      bar_->setNativeMenuBar(false);
    }
    Build(*entry, entry->IsPopup() ? window : *bar_);
  }
  Apply();
}

MenuBinder::~MenuBinder() {
  for (MenuEntry* entry : form_.Menus()) entry->observer = nullptr;
}

void MenuBinder::Build(MenuEntry& entry, QWidget& parent) {
  QAction* action = nullptr;
  if (entry.Children().empty() && !entry.IsPopup()) {
    action = new QAction(&window_);
    connect(action, &QAction::triggered, this, [this, &entry] {
      if (QWidget* open = QApplication::activePopupWidget()) open->close();
      display_.MarkDirty();
      display_.GetDesk().ChooseMenu(entry);
    });
  } else {
    auto* menu = new QMenu(&window_);
    for (MenuEntry* child : entry.Children()) Build(*child, *menu);
    action = menu->menuAction();
  }
  if (!entry.IsPopup()) parent.addAction(action);
  actions_[&entry] = action;
}

QAction* MenuBinder::ActionOf(const MenuEntry& entry) const {
  const auto found = actions_.find(&entry);
  return found == actions_.end() ? nullptr : found->second;
}

void MenuBinder::Apply() {
  if (!dirty_) return;
  dirty_ = false;
  for (const auto& [entry, action] : actions_) {
    const bool shown = entry->Shown();
    const QString caption = shown ? entry->Caption() : WithoutMnemonic(entry->Caption());
    if (action->text() != caption) action->setText(caption);
    // An entry of blanks only keeps its neighbours apart: nobody goes to it, nothing is read out.
    const bool spacer = entry->Children().empty() && caption.trimmed().isEmpty();
    if (action->isSeparator() != spacer) action->setSeparator(spacer);
    if (action->isVisible() != shown) action->setVisible(shown);
    if (action->isEnabled() != entry->Enabled()) action->setEnabled(entry->Enabled());
  }
}

void MenuBinder::ShowPopup(const QPoint& place) {
  MenuEntry* popup = form_.openPopup;
  if (popup == nullptr) return;
  form_.openPopup = nullptr;
  QAction* action = ActionOf(*popup);
  if (action == nullptr || action->menu() == nullptr) return;
  Apply();
  action->menu()->popup(place);
}

}  // namespace tamo
