#include "support/planstroke.h"

#include <utility>

namespace tamo::test {

bool PlanStrokeFromName(const QString& name, PlanStroke& stroke) {
  static const std::pair<const char*, PlanKey> keys[] = {
      {"Left", PlanKey::Left},     {"Right", PlanKey::Right},
      {"Up", PlanKey::Up},         {"Down", PlanKey::Down},
      {"Space", PlanKey::Space},   {"Enter", PlanKey::Enter},
      {"Escape", PlanKey::Escape}, {"Backspace", PlanKey::Backspace},
      {"Undo", PlanKey::Undo},     {"Redo", PlanKey::Redo},
      {"Arc", PlanKey::Arc},       {"S", PlanKey::Snap},
      {"Tab", PlanKey::NextSnap},  {"Y", PlanKey::Yes},
      {"N", PlanKey::No},          {"A", PlanKey::All},
      {"P", PlanKey::MarkBefore},  {"Delete", PlanKey::Delete}};
  PlanStroke read;
  QString rest = name.trimmed();
  for (;;) {
    if (rest.startsWith(QLatin1String("Shift+"))) {
      read.shift = true;
      rest.remove(0, 6);
    } else if (rest.startsWith(QLatin1String("Ctrl+"))) {
      read.ctrl = true;
      rest.remove(0, 5);
    } else {
      break;
    }
  }
  if (read.ctrl && rest == QLatin1String("Z")) rest = QStringLiteral("Undo");
  if (read.ctrl && rest == QLatin1String("Y")) rest = QStringLiteral("Redo");
  for (const auto& [text, key] : keys) {
    if (rest == QLatin1String(text)) {
      read.key = key;
      stroke = read;
      return true;
    }
  }
  return false;
}

}  // namespace tamo::test
