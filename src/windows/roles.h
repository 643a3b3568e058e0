#pragma once

#include <QFrame>
#include <QLabel>

namespace tamo {

// What a frame or label is for; the style draws its ground, its line and the room inside it.
enum class Role {
  None,
  Panel,   // a group on the ground of fields, with a line round it
  Foot,    // the window's last line, ruled off
  Notice,  // what could not be saved: the strip above the foot
  Tag,     // a short word over or beside a field, on the ground of notices
  Rule,    // a line between groups, one pixel high
  Drop,    // a list that drops from a field
  Offer,   // names offered beside a field
};

// To be given before the widget is shown or measured.
void GiveRole(QFrame& frame, Role role);
Role RoleOf(const QWidget& widget);

// Prompts and captions: in the quieter colour.
void MakeQuiet(QLabel& label);

}  // namespace tamo
