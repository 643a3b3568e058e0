#pragma once

#include <QString>
#include <memory>

#include "common/kit.h"
#include "history/history.h"
#include "records/markupsfile.h"
#include "reports/projectrecord.h"
#include "reports/reportsource.h"

namespace tamo {

// Which state of the open project the reports read: the one that stands, or a former one that is
// looked at.
class ReportedBid {
 public:
  ReportedBid(const Kit& kit, History& history, ProjectRecord& record)
      : kit_(kit), history_(history), record_(record) {}

  void LookAt(std::shared_ptr<const FormerBid> former) { former_ = std::move(former); }
  bool Former() const { return former_ != nullptr; }
  // What marks a report of a former state, on the screen and on paper; "" for the one that stands.
  QString Mark() const;

  Files& GetFiles() const { return former_ == nullptr ? kit_.files : former_->GetFiles(); }
  Markups LoadedMarkups() const;  // of the former state
  ProjectFacts Facts() const;

  // The comparison of a former state with the bid as it stands; `source` reads the latter.
  Report CompareWith(const FormerBid& then, const ReportSource& source);
  // The version that was sent; null, and the estimator is told, when there is none to be read.
  std::shared_ptr<const FormerBid> Sent();
  // The bid as it stands under a name; what hinders it is told. True when it was kept.
  bool Keep(const QString& name);

 private:
  const Kit kit_;
  History& history_;
  ProjectRecord& record_;
  std::shared_ptr<const FormerBid> former_;
};

}  // namespace tamo
