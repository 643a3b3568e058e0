#include "windows/menukey.h"

#include <QShortcut>

#include "program/program.h"
#include "windows/formwindow.h"

namespace tamo {

void GiveMenuKey(Builder& b, const QKeySequence& keys, const char* entry) {
  MenuEntry* found = b.GetForm().FindMenu(QLatin1String(entry));
  if (found == nullptr) return;
  Desk& desk = b.GetProgram().GetDesk();
  auto* shortcut = new QShortcut(keys, &b.Window());
  shortcut->setAutoRepeat(false);
  QObject::connect(shortcut, &QShortcut::activated, &b.Window(),
                   [found, &desk] { desk.ChooseMenu(*found); });
}

}  // namespace tamo
