#pragma once

#include <QByteArray>

#include "plans/planengine.h"
#include "plans/workersource.h"

namespace tamo {

// The engine in processes of its own, one for each plan: a page that ends, hangs or bloats it costs
// that page, and another process takes its place. It begins with the first call on the plan.
class WorkerEngine : public PlanEngine {
 public:
  // The program of the worker; when it is not there, no plan opens, and that is said.
  explicit WorkerEngine(QByteArray program = BesideThisProgram());
  std::shared_ptr<EnginePlan> NewPlan(std::shared_ptr<PlanSource> source) override;
  // Whether a process waits for the next plan; one does from half a second after the first plan.
  bool OneWaits() const { return workers_->OneWaits(); }

  static QByteArray BesideThisProgram();
  // What the system lacks to keep workers from doing harm, as a sentence; empty when nothing, or
  // when no worker was started yet. Any thread.
  static QString MissingGuards();

 private:
  std::shared_ptr<WorkerSource> workers_;
};

}  // namespace tamo
