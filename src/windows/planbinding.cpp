#include "windows/planbinding.h"

#include <QKeyEvent>
#include <utility>

namespace tamo {

PlanBinding::PlanBinding(Display& display, Control& control, PlanCanvas& canvas,
                         std::unique_ptr<PlanKeys> keys)
    : Binding(display, control, canvas), canvas_(canvas), keys_(std::move(keys)) {}

bool PlanBinding::eventFilter(QObject*, QEvent* event) {
  if (event->type() != QEvent::KeyPress) {
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
      canvas_.viewport()->update();
    return TakeCommon(event);
  }
  auto& key = static_cast<QKeyEvent&>(*event);
  return keys_->Take(key) || GetDisplay().TakeKey(*this, key);
}

}  // namespace tamo
