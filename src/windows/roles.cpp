#include "windows/roles.h"

#include <QPalette>
#include <QVariant>

namespace tamo {
namespace {

constexpr char kRole[] = "role";

}  // namespace

void GiveRole(QFrame& frame, Role role) {
  frame.setProperty(kRole, static_cast<int>(role));
  frame.setFrameStyle(frame.frameStyle());  // the room inside is asked for anew
}

Role RoleOf(const QWidget& widget) {
  return static_cast<Role>(widget.property(kRole).toInt());
}

void MakeQuiet(QLabel& label) {
  label.setForegroundRole(QPalette::PlaceholderText);
}

}  // namespace tamo
