#pragma once

#include <QByteArray>

#include "plans/planengine.h"

namespace tamo {

// The engine in processes of its own, one for each plan: a page that ends, hangs or bloats it costs
// that page, and another process takes its place. It begins with the first call on the plan.
class WorkerEngine : public PlanEngine {
 public:
  // The program of the worker; when it is not there, no plan opens, and that is said.
  explicit WorkerEngine(QByteArray program = BesideThisProgram());
  std::shared_ptr<EnginePlan> NewPlan(std::shared_ptr<PlanSource> source) override;

  static QByteArray BesideThisProgram();
  // What the system lacks to keep workers from doing harm, as a sentence; empty when nothing, or
  // when no worker was started yet. Any thread.
  static QString MissingGuards();

 private:
  QByteArray program_;
};

}  // namespace tamo
