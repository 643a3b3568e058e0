#pragma once

#include <QString>

#include "command/command.h"
#include "common/files.h"
#include "common/sharedfields.h"
#include "records/projectrecord.h"
#include "reports/namedreports.h"
#include "reports/uncounted.h"

namespace tamo {

// A data folder, opened for reading only.
class CommandData {
 public:
  explicit CommandData(const CommandPlatform& platform);

  // The folder `named`, or that of the settings. What is wrong with it in words; "" for nothing.
  QString Open(const QString& named);
  // A project of it becomes the open one.
  QString OpenProject(const QString& id);

  Files& GetFiles() { return files_; }
  const SharedFields& Shared() const { return shared_; }
  const QString& Company() const { return company_; }
  // Whether a path lies in the data folder.
  bool Holds(const QString& path) const;
  // The source of a report of the open project.
  ReportSource Source(Uncounted& uncounted, TableSink* table);
  // What the reports count of the open project; what can't be read of it is told.
  ReportFacts Facts(Uncounted& uncounted);

 private:
  const CommandPlatform& platform_;
  Files files_;
  SharedFields shared_;
  JobNFO record_;
  QString company_;
  bool wholeQuantities_ = false;
};

}  // namespace tamo
