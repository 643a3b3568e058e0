#pragma once

#include <memory>

#include "windows/display.h"
#include "windows/plancanvas.h"
#include "windows/plankeys.h"

namespace tamo {

// The plan's canvas as a control of its form; `keys` are what the estimator strikes there.
class PlanBinding : public Binding {
 public:
  PlanBinding(Display& display, Control& control, PlanCanvas& canvas,
              std::unique_ptr<PlanKeys> keys);
  QWidget& ClickTarget() const override { return *canvas_.viewport(); }

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  PlanCanvas& canvas_;
  std::unique_ptr<PlanKeys> keys_;
};

}  // namespace tamo
